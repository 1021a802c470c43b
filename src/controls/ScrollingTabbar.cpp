#include "controls/ScrollingTabbar.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr double tabWidthForCount = 80.0;
constexpr double marginAbove = 12.0;

} // namespace

ScrollingTabbar::ScrollingTabbar(QSizeF screenBounds)
    : _maxTabsVisible(tabsVisibleInWidth(screenBounds.width()))
{
}

double ScrollingTabbar::tabsVisibleInWidth(double width)
{
    return std::floor(width / tabWidthForCount) + 0.5;
}

void ScrollingTabbar::setMaxTabsVisible(double maxTabsVisible)
{
    _maxTabsVisible = maxTabsVisible;
    layoutSubviews();
}

void ScrollingTabbar::setFontSize(double fontSize)
{
    _fontSize = fontSize;
    Q_EMIT tabsChanged();
}

TabButton* ScrollingTabbar::addButtonToTabBarWithTitle(const QString& title, const QString& image,
                                                       Block block)
{
    auto* button = new TabButton(title.toUpper(), image, this);
    if (buttonTint)
        button->setTintColor(*buttonTint);
    _tabs.push_back({button, std::move(block)});
    layoutSubviews();
    Q_EMIT tabsChanged();
    return button;
}

void ScrollingTabbar::removeAllTabs()
{
    for (const Tab& tab : std::exchange(_tabs, {}))
        tab.button->deleteLater(); // its own press may be under way
    Q_EMIT tabsChanged();
}

void ScrollingTabbar::selectButtonAtIndex(int index)
{
    const auto tint = [](TabButton* button, const std::optional<QColor>& color) {
        button->setTintColor(color.value_or(Qt::white));
    };
    for (const Tab& tab : _tabs) {
        tab.button->setSelected(false);
        tint(tab.button, buttonTint);
    }
    if (TabButton* button = buttonAtIndex(index)) {
        button->setSelected(true);
        tint(button, selectedButtonTint);
    }
}

TabButton* ScrollingTabbar::buttonAtIndex(int index) const
{
    return index >= 0 && index < int(_tabs.size()) ? _tabs[std::size_t(index)].button : nullptr;
}

ScrollingTabbar::Block ScrollingTabbar::blockForButton(const TabButton* button) const
{
    const auto tab = std::find_if(_tabs.begin(), _tabs.end(),
                                  [=](const Tab& each) { return each.button == button; });
    return tab == _tabs.end() ? Block() : tab->block;
}

void ScrollingTabbar::buttonPressed(TabButton* button)
{
    if (!_isUserInteractionEnabled)
        return;
    if (const Block block = blockForButton(button))
        block();
}

void ScrollingTabbar::centerButton(TabButton* button)
{
    const double most = _contentSize.width() - _bounds.width();
    if (button && most > 0)
        Q_EMIT scrolledTo(
            std::clamp(button->frame().center().x() - _bounds.width() * 0.5, 0.0, most));
}

void ScrollingTabbar::setBounds(QSizeF bounds)
{
    _bounds = bounds;
    layoutSubviews();
}

void ScrollingTabbar::layoutSubviews()
{
    const double width = std::floor(_bounds.width() / _maxTabsVisible);
    double x = 0.0;
    for (const Tab& tab : _tabs) {
        tab.button->setFrame({x, marginAbove, width, _bounds.height() - 2 * marginAbove});
        x += width;
    }
    _contentSize = {x, _bounds.height()};
    _contentInset = x < _bounds.width() ? (_bounds.width() - x) * 0.5 : 0.0;
    Q_EMIT layoutChanged();
}

void ScrollingTabbar::setUserInteractionEnabled(bool enabled)
{
    if (enabled == _isUserInteractionEnabled)
        return;
    _isUserInteractionEnabled = enabled;
    Q_EMIT userInteractionEnabledChanged();
}

QList<QObject*> ScrollingTabbar::buttonObjects() const
{
    QList<QObject*> buttons;
    for (const Tab& tab : _tabs)
        buttons.append(tab.button);
    return buttons;
}

} // namespace pelmira
