#include "background_editor/shadow/ContextShadowDrawing.h"

#include "background_editor/shadow/Coverage.h"
#include "background_editor/shadow/ShadowResolution.h"

#include <QPainter>
#include <QRect>

namespace pelmira {

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
    const QImage image = tinted(blurredCoverage(coverage, deviation), shadow.color);
    if (image.isNull())
        return false;
    QPainter(&onto).drawImage(region.topLeft() + offset, image);
    return true;
}

} // namespace pelmira
