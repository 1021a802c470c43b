#include "platform/quick/NavigationController.h"

#include "platform/Log.h"
#include "platform/RunLoop.h"
#include "platform/quick/GLKView.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

#include <utility>

namespace pelmira {

NavigationController::NavigationController(QQuickWindow& window) : _window(window)
{
    const auto resized = [this] {
        for (Entry& entry : _stack)
            fitToWindow(entry);
    };
    connect(&_window, &QWindow::widthChanged, this, resized);
    connect(&_window, &QWindow::heightChanged, this, resized);
}

NavigationController::~NavigationController()
{
    while (!_stack.empty()) {
        unload(_stack.back());
        _stack.pop_back();
    }
}

void NavigationController::pushViewController(std::shared_ptr<Screen> screen)
{
    if (!_stack.empty()) {
        _stack.back().screen->viewWillDisappear(true);
        _stack.back().layout->setVisible(false);
    }
    load(std::move(screen));
}

void NavigationController::popViewController()
{
    if (_stack.size() < 2)
        return;
    _stack.back().screen->viewWillDisappear(true);
    drop(_stack.size() - 1);
    _stack.back().layout->setVisible(true);
    appear();
}

void NavigationController::setRoot(std::shared_ptr<Screen> screen)
{
    while (!_stack.empty()) {
        _stack.back().screen->viewWillDisappear(false);
        drop(_stack.size() - 1);
    }
    load(std::move(screen));
}

void NavigationController::removeBelowTop(const std::function<bool(const Screen&)>& isUnwanted)
{
    for (std::size_t i = 0; i + 1 < _stack.size();) {
        if (isUnwanted(*_stack[i].screen))
            drop(i);
        else
            ++i;
    }
}

void NavigationController::applicationDidEnterBackground()
{
    for (auto entry = _stack.rbegin(); entry != _stack.rend(); ++entry)
        entry->screen->applicationDidEnterBackground();
}

void NavigationController::load(std::shared_ptr<Screen> screen)
{
    QQmlEngine::setObjectOwnership(screen.get(), QQmlEngine::CppOwnership);
    QQmlComponent component(&_engine, screen->layoutFile());
    std::unique_ptr<QObject> root(component.createWithInitialProperties(
        {{QStringLiteral("screen"), QVariant::fromValue<QObject*>(screen.get())}}));
    auto* item = qobject_cast<QQuickItem*>(root.get());
    if (!item) {
        logLine("%s", qPrintable(component.errorString()));
        return;
    }
    root.release();
    _stack.push_back({std::move(screen), std::unique_ptr<QQuickItem>(item)});
    Entry& entry = _stack.back();
    item->setParentItem(_window.contentItem());
    if (auto* glView = item->findChild<GLKView*>()) {
        glView->setResponder(dynamic_cast<TouchResponder*>(entry.screen.get()));
        entry.screen->setGLView(glView);
    }
    entry.screen->viewDidLoad();
    fitToWindow(entry);
    appear();
}

void NavigationController::appear()
{
    const std::shared_ptr<Screen> screen = _stack.back().screen;
    screen->viewWillAppear(true);
    // A screen has appeared once it has been seen.
    connect(
        &_window, &QQuickWindow::frameSwapped, this,
        [this, screen] {
            if (topScreen() == screen.get())
                screen->viewDidAppear(true);
        },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    _window.update();
}

// What asks a screen to go is mostly one of its own buttons: it stays until the next turn.
void NavigationController::drop(std::size_t index)
{
    unload(_stack[index]);
    const auto leaving = std::make_shared<Entry>(std::move(_stack[index]));
    _stack.erase(_stack.begin() + std::ptrdiff_t(index));
    mainQueue().async([leaving] {});
}

void NavigationController::unload(Entry& entry)
{
    if (auto* glView = entry.layout->findChild<GLKView*>()) {
        glView->setResponder(nullptr);
        glView->setDelegate(nullptr);
    }
    entry.screen->setGLView(nullptr);
    entry.layout->setParentItem(nullptr);
}

void NavigationController::fitToWindow(Entry& entry)
{
    const QSizeF size(_window.width(), _window.height());
    entry.layout->setSize(size);
    entry.screen->setViewSize(size);
}

} // namespace pelmira
