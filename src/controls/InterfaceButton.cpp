#include "controls/InterfaceButton.h"

namespace pelmira {

void InterfaceButton::setEnabled(bool enabled)
{
    if (enabled == _enabled)
        return;
    _enabled = enabled;
    Q_EMIT enabledChanged();
}

void InterfaceButton::setSelected(bool selected)
{
    if (selected == _selected)
        return;
    _selected = selected;
    Q_EMIT selectedChanged();
}

void InterfaceButton::setTintColor(const QColor& color)
{
    if (color == _tintColor)
        return;
    _tintColor = color;
    Q_EMIT tintColorChanged();
}

} // namespace pelmira
