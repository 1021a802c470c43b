#include "crop/ConstraintButton.h"

#include <QPainter>

#include <utility>

namespace pelmira {

ConstraintButton::ConstraintButton(int tag, QString title, QString name, QObject* parent)
    : InterfaceButton(parent), _title(std::move(title)), _name(std::move(name))
{
    setTag(tag);
    connect(this, &InterfaceButton::tintColorChanged, this, &ConstraintButton::tintImage);
}

void ConstraintButton::setFrame(const QRectF& frame)
{
    if (frame == _frame)
        return;
    _frame = frame;
    Q_EMIT frameChanged();
}

void ConstraintButton::setTemplateImage(const QImage& image)
{
    _template = image;
    tintImage();
}

void ConstraintButton::tintImage()
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
