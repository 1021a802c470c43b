#include "background_editor/shadow/ContextShadowDrawing.h"

#include "background_editor/shadow/Coverage.h"
#include "background_editor/shadow/ShadowResolution.h"

#include <QPainter>
#include <QRect>

#include <algorithm>

namespace pelmira {
namespace {

constexpr int bandRows = 64;

} // namespace

bool drawContextShadow(QImage& onto, const QImage& layer, QPoint layerOrigin,
                       const ContextShadow& shadow)
{
    const double deviation = shadow.blur * 0.5;
    const QPoint offset = shadow.offset.toPoint();
    const int reach = static_cast<int>(shadowReach(deviation));
    const QMargins margins(reach, reach, reach, reach);
    const QRect layerRect(layerOrigin, layer.size());
    // Before the offset. What can't be seen on the picture, or seen through it, isn't worked out.
    const QRect region = onto.rect().translated(-offset).marginsAdded(margins).intersected(
        layerRect.marginsAdded(margins));
    if (region.isEmpty())
        return true;
    QImage coverage(region.size(), QImage::Format_Alpha8);
    if (coverage.isNull())
        return false;
    coverage.fill(0);
    QPainter(&coverage).drawImage(layerOrigin - region.topLeft(), layer);
    const QImage blurred = blurredCoverage(coverage, deviation);
    if (blurred.isNull())
        return false;
    // In bands: with its colour it has four times the bytes.
    QPainter painter(&onto);
    for (int top = 0; top < blurred.height(); top += bandRows) {
        const int rows = std::min(bandRows, blurred.height() - top);
        const QImage band = tinted(blurred.copy(0, top, blurred.width(), rows), shadow.color);
        if (band.isNull())
            return false;
        painter.drawImage(region.topLeft() + offset + QPoint(0, top), band);
    }
    return true;
}

} // namespace pelmira
