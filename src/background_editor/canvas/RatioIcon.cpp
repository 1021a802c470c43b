#include "background_editor/canvas/RatioIcon.h"

#include "controls/ScreenScale.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

QRectF frameFor(double ratio)
{
    const QSizeF size = ratio <= 1.0 ? QSizeF(ratio * ratioIconSide, ratioIconSide)
                                     : QSizeF(ratioIconSide, ratioIconSide / ratio);
    QRectF frame(QPointF(), size);
    frame.moveCenter({ratioIconSide * 0.5, ratioIconSide * 0.5});
    return frame;
}

void drawOverlay(QPainter& painter, const char* name)
{
    QSvgRenderer renderer(QStringLiteral(":/ratios/") + QLatin1String(name) +
                          QStringLiteral(".svg"));
    QRectF frame(QPointF(), QSizeF(renderer.defaultSize()));
    frame.moveCenter({ratioIconSide * 0.5, ratioIconSide * 0.5});
    renderer.render(&painter, frame);
}

} // namespace

QImage makeRatioIcon(AspectRatio ratio, QSizeF screenBounds)
{
    const double scale = screenScale();
    const int pixels = static_cast<int>(std::ceil(ratioIconSide * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    // A line of one point inside the frame.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(frameFor(ratioValue(ratio, screenBounds)).adjusted(0.5, 0.5, -0.5, -0.5));
    if (const char* overlay = overlayImageName(ratio))
        drawOverlay(painter, overlay);
    return image;
}

} // namespace pelmira
