#pragma once

#include "controls/TabButton.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace pelmira {

/// A row of tabs that scrolls sideways. It shows a whole number of tabs and a half, so that the cut
/// one says that there is more, and stands in the middle where all fit. Points, y down.
class ScrollingTabbar final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QObject*> buttons READ buttonObjects NOTIFY tabsChanged)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY layoutChanged)
    Q_PROPERTY(double contentInset READ contentInset NOTIFY layoutChanged)
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY tabsChanged)
    Q_PROPERTY(bool userInteractionEnabled READ isUserInteractionEnabled NOTIFY
                   userInteractionEnabledChanged)

public:
    using Block = std::function<void()>;

    /// As many tabs as the screen is wide, in points; they fit whatever is shown on it.
    explicit ScrollingTabbar(QSizeF screenBounds);

    double maxTabsVisible() const { return _maxTabsVisible; }
    void setMaxTabsVisible(double maxTabsVisible);
    /// One tab for each eighty points and a half one.
    static double tabsVisibleInWidth(double width);

    double fontSize() const { return _fontSize; }
    void setFontSize(double fontSize);
    double imageTextSpacing = 12.0;
    std::optional<QColor> buttonTint; ///< of a tab that isn't chosen; none until it is given
    std::optional<QColor> selectedButtonTint;

    /// The button is the bar's. The image is the name of an icon.
    TabButton* addButtonToTabBarWithTitle(const QString& title, const QString& image, Block block);
    void removeAllTabs();
    void selectButtonAtIndex(int index);
    /// Null for an index without a tab.
    TabButton* buttonAtIndex(int index) const;
    Q_INVOKABLE void buttonPressed(pelmira::TabButton* button);
    /// Scrolls so that the button stands in the middle, as far as the row goes.
    Q_INVOKABLE void centerButton(pelmira::TabButton* button);

    /// Lays the tabs out in a bar of the size.
    void setBounds(QSizeF bounds);
    QSizeF contentSize() const { return _contentSize; }
    /// At either side of the row.
    double contentInset() const { return _contentInset; }
    bool isUserInteractionEnabled() const { return _isUserInteractionEnabled; }
    void setUserInteractionEnabled(bool enabled);

    QList<QObject*> buttonObjects() const;

Q_SIGNALS:
    void tabsChanged();
    void layoutChanged();
    /// The row glides there, in points from its beginning.
    void scrolledTo(double offset);
    void userInteractionEnabledChanged();

private:
    struct Tab {
        TabButton* button; ///< a child
        Block block;
    };

    void layoutSubviews();
    Block blockForButton(const TabButton* button) const;

    std::vector<Tab> _tabs;
    QSizeF _bounds;
    double _maxTabsVisible;
    double _fontSize = 12.0;
    QSizeF _contentSize;
    double _contentInset = 0.0;
    bool _isUserInteractionEnabled = true;
};

} // namespace pelmira
