#include "platform/quick/PlateView.h"

namespace pelmira {

void PlateView::setColor(const QColor& color)
{
    if (color == _color)
        return;
    _color = color;
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(color);
    setImage(pixel);
    Q_EMIT colorChanged();
}

} // namespace pelmira
