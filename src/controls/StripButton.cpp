#include "controls/StripButton.h"

#include <QPainter>

#include <utility>

namespace pelmira {

StripButton::StripButton(int tag, QString title, QString name, QObject* parent)
    : InterfaceButton(parent), _title(std::move(title)), _name(std::move(name))
{
    setTag(tag);
    connect(this, &InterfaceButton::tintColorChanged, this, &StripButton::tintImage);
}

void StripButton::setFrame(const QRectF& frame)
{
    if (frame == _frame)
        return;
    _frame = frame;
    Q_EMIT frameChanged();
}

void StripButton::setTemplateImage(const QImage& image)
{
    _template = image;
    tintImage();
}

void StripButton::tintImage()
{
    if (_template.isNull())
        return;
    _image = _template;
    QPainter painter(&_image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(), _image.deviceIndependentSize()), tintColor());
    painter.end();
    Q_EMIT imageChanged();
}

} // namespace pelmira
