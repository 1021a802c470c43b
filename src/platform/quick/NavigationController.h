#pragma once

#include "platform/Screen.h"

#include <QObject>
#include <QQmlEngine>

#include <functional>
#include <memory>
#include <vector>

class QQuickItem;
class QQuickWindow;

namespace pelmira {

/// The stack of screens in one window. It loads each screen's layout file, keeps the screen told
/// of its size and calls its life-cycle operations.
class NavigationController final : public QObject {
    Q_OBJECT

public:
    explicit NavigationController(QQuickWindow& window);
    ~NavigationController() override;

    /// Shows the screen over the present one.
    void pushViewController(std::shared_ptr<Screen> screen);
    /// Goes back to the screen below; the first one stays.
    void popViewController();
    /// Shows the screen in place of all others.
    void setRoot(std::shared_ptr<Screen> screen);

    /// Takes screens of a kind out from under the top one: going back never shows them again.
    template <class Kind>
    void removeBelowTop()
    {
        removeBelowTop([](const Screen& screen) { return dynamic_cast<const Kind*>(&screen); });
    }

    Screen* topScreen() const { return _stack.empty() ? nullptr : _stack.back().screen.get(); }
    /// Tells every screen, the top one first, that the application leaves the foreground.
    void applicationDidEnterBackground();

private:
    struct Entry {
        std::shared_ptr<Screen> screen;
        std::unique_ptr<QQuickItem> layout; ///< reads the screen, so it goes first
    };

    void load(std::shared_ptr<Screen> screen);
    void appear();
    void removeBelowTop(const std::function<bool(const Screen&)>& isUnwanted);
    void drop(std::size_t index);
    void unload(Entry& entry);
    void fitToWindow(Entry& entry);

    QQuickWindow& _window;
    QQmlEngine _engine;
    std::vector<Entry> _stack;
};

} // namespace pelmira
