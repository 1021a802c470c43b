#include "background_editor/colors/ChangeColorVC.h"

#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <cmath>
#include <utility>

namespace pelmira {

ChangeColorVC::ChangeColorVC() = default;

QUrl ChangeColorVC::layoutFile() const
{
    return layoutUrl("ChangeColorScreen");
}

QString ChangeColorVC::title() const
{
    return localized("colorscreen.title");
}

void ChangeColorVC::viewDidLoad()
{
    const auto show = [this](const QColor& color) { setBackgroundColor(color); };
    _colorPickerLine.colorChangedBlock = show;
    _colorPicker.colorChangedBlock = show;
}

void ChangeColorVC::setBackgroundColor(const QColor& color)
{
    _backgroundColor = color;
    Q_EMIT backgroundColorChanged();
}

void ChangeColorVC::setContainerSize(QSizeF size)
{
    _containerSize = size;
    if (!_image.isNull() && !size.isEmpty()) {
        const double ratio = double(_image.width()) / _image.height();
        _imageViewSize = size.width() / size.height() < ratio
                             ? QSizeF(size.width(), std::floor(size.width() / ratio))
                             : QSizeF(std::floor(size.height() * ratio), size.height());
    }
    Q_EMIT layoutChanged();
}

void ChangeColorVC::doneButtonPressed()
{
    if (doneBlock)
        doneBlock(_backgroundColor.isValid() ? _backgroundColor : QColor(Qt::white));
    leave();
}

void ChangeColorVC::cancelButtonPressed()
{
    leave();
}

// A second press finds the screen already going.
void ChangeColorVC::leave()
{
    doneBlock = nullptr;
    if (dismissBlock)
        std::exchange(dismissBlock, nullptr)();
}

} // namespace pelmira
