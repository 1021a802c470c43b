#include "platform/quick/NavigationController.h"

#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/quick/DimmingView.h"
#include "platform/quick/GLKView.h"
#include "platform/quick/TouchArea.h"

#include <QEasingCurve>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

// In points; the Human Interface guidelines of most handhelds draw the line near here.
constexpr double shortestTabletSide = 600.0;
constexpr QSizeF sheetSize(560.0, 680.0);
constexpr double sheetMargin = 32.0;

constexpr int motionMilliseconds = 240;
constexpr double pushedWay = 48.0;    // points from the right
constexpr double presentedWay = 64.0; // points from below

} // namespace

struct NavigationController::Entry {
    std::shared_ptr<Screen> screen;
    bool isPresented = false;
    ModalPresentationStyle style = ModalPresentationStyle::FullScreen;
    // The layout reads the screen, so it goes first; it lies in the container.
    std::unique_ptr<DimmingView> container;
    std::unique_ptr<QQuickItem> layout;

    bool isSheet() const { return style == ModalPresentationStyle::FormSheet; }
};

NavigationController::NavigationController(QQuickWindow& window, QQmlEngine& engine)
    : _window(window), _engine(engine)
{
    const auto resized = [this] {
        for (const auto& entry : _stack)
            fitToWindow(*entry);
        _wasResized = true;
    };
    connect(&_window, &QWindow::widthChanged, this, resized);
    connect(&_window, &QWindow::heightChanged, this, resized);
    // A driver may have settled the size of the next back buffer right after the last swap. The
    // first frame of another size then lies shifted and cut off in it: only the second fits.
    connect(&_window, &QQuickWindow::frameSwapped, this, [this] {
        if (std::exchange(_wasResized, false))
            _window.update();
    });
    _motion.setStartValue(0.0);
    _motion.setEndValue(1.0);
    _motion.setDuration(motionMilliseconds);
    _motion.setEasingCurve(QEasingCurve::OutCubic);
    connect(&_motion, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { place(value.toDouble()); });
    connect(&_motion, &QVariantAnimation::finished, this, &NavigationController::arrive);
}

NavigationController::~NavigationController()
{
    _motion.stop();
    if (_moving && _way == Way::Out)
        detach(*_moving);
    _moving.reset();
    while (!_stack.empty()) {
        detach(*_stack.back());
        _stack.pop_back();
    }
}

Screen* NavigationController::topScreen() const
{
    return _stack.empty() ? nullptr : _stack.back()->screen.get();
}

bool NavigationController::isPhone(QSizeF windowSize)
{
    return std::min(windowSize.width(), windowSize.height()) < shortestTabletSide;
}

QRectF NavigationController::formSheetFrame(QSizeF windowSize)
{
    QRectF frame(QPointF(), sheetSize.boundedTo(windowSize - QSizeF(sheetMargin, sheetMargin)));
    frame.moveCenter(QRectF(QPointF(), windowSize).center());
    return frame.toAlignedRect();
}

void NavigationController::setRoot(std::shared_ptr<Screen> screen)
{
    settle();
    leaveFrom(0, false);
    if (const auto entry = load(std::move(screen)))
        show(entry, false);
}

void NavigationController::pushViewController(std::shared_ptr<Screen> screen)
{
    if (const auto entry = load(std::move(screen)))
        show(entry, true);
}

void NavigationController::presentViewController(std::shared_ptr<Screen> screen,
                                                 ModalPresentationStyle style, bool animated)
{
    const auto entry = load(std::move(screen));
    if (!entry)
        return;
    entry->isPresented = true;
    entry->style = isPhone(_window.size()) ? ModalPresentationStyle::FullScreen : style;
    entry->container = std::make_unique<DimmingView>(entry->isSheet(), _window.contentItem());
    connect(entry->screen.get(), &Screen::showsScreenBelowChanged, this, [this] {
        if (!_moving)
            hideWhatIsCovered();
    });
    show(entry, animated);
}

void NavigationController::popViewController()
{
    settle();
    if (_stack.size() < 2)
        return;
    leaveFrom(_stack.size() - 1, true);
    appear(true);
}

void NavigationController::popToRootViewController()
{
    settle();
    if (_stack.size() < 2)
        return;
    leaveFrom(1, true);
    appear(true);
}

bool NavigationController::holds(const std::function<bool(const Screen&)>& isWanted) const
{
    return std::any_of(_stack.begin(), _stack.end(),
                       [&](const auto& entry) { return isWanted(*entry->screen); });
}

void NavigationController::setEnabled(bool isEnabled)
{
    _isEnabled = isEnabled;
    if (_stack.empty())
        return;
    DimmingView& top = *_stack.back()->container;
    top.setEnabled(isEnabled && !_dismissed);
    if (isEnabled)
        top.forceActiveFocus();
}

void NavigationController::dismissViewController(std::function<void()> completion, bool animated)
{
    settle();
    const auto presented = std::find_if(_stack.rbegin(), _stack.rend(),
                                        [](const auto& entry) { return entry->isPresented; });
    if (presented == _stack.rend()) {
        if (completion)
            completion();
        return;
    }
    leaveFrom(static_cast<std::size_t>(_stack.rend() - presented) - 1, animated);
    _dismissed = std::move(completion);
    appear(animated);
}

void NavigationController::removeBelowTop(const std::function<bool(const Screen&)>& isUnwanted)
{
    for (std::size_t i = 0; i + 1 < _stack.size();) {
        if (!isUnwanted(*_stack[i]->screen)) {
            ++i;
            continue;
        }
        unload(std::move(_stack[i]));
        _stack.erase(_stack.begin() + std::ptrdiff_t(i));
    }
}

std::vector<TouchResponder*> NavigationController::touchResponders() const
{
    std::vector<TouchResponder*> responders;
    if (!_isEnabled)
        responders.push_back(nullptr);
    for (auto entry = _stack.rbegin(); entry != _stack.rend(); ++entry) {
        auto* responder = dynamic_cast<TouchResponder*>((*entry)->screen.get());
        if (responder || entry == _stack.rbegin())
            responders.push_back(responder);
    }
    return responders;
}

void NavigationController::applicationWillResignActive()
{
    for (auto entry = _stack.rbegin(); entry != _stack.rend(); ++entry)
        (*entry)->screen->applicationWillResignActive();
}

void NavigationController::applicationDidEnterBackground()
{
    for (auto entry = _stack.rbegin(); entry != _stack.rend(); ++entry)
        (*entry)->screen->applicationDidEnterBackground();
}

void NavigationController::didReceiveMemoryWarning()
{
    for (auto entry = _stack.rbegin(); entry != _stack.rend(); ++entry)
        (*entry)->screen->didReceiveMemoryWarning();
}

bool NavigationController::hasUnfinishedWork() const
{
    return isSaidByAny(&Screen::hasUnfinishedWork);
}

bool NavigationController::asksAboutUnsaved() const
{
    return isSaidByAny(&Screen::asksAboutUnsaved);
}

bool NavigationController::isSaidByAny(bool (Screen::*question)() const) const
{
    const auto isSo = [question](const auto& entry) {
        return entry && (entry->screen.get()->*question)();
    };
    return isSo(_moving) || std::any_of(_stack.begin(), _stack.end(), isSo);
}

std::shared_ptr<NavigationController::Entry>
NavigationController::load(std::shared_ptr<Screen> screen)
{
    settle();
    QQmlEngine::setObjectOwnership(screen.get(), QQmlEngine::CppOwnership);
    QQmlComponent component(&_engine, screen->layoutFile());
    // Qt looks into a component's properties also where it has none.
    std::unique_ptr<QObject> root;
    if (component.isReady())
        root.reset(component.createWithInitialProperties(
            {{QStringLiteral("screen"), QVariant::fromValue<QObject*>(screen.get())}}));
    auto* item = qobject_cast<QQuickItem*>(root.get());
    if (!item) {
        logLine("A screen can't be shown: %s", qPrintable(component.errorString().trimmed()));
        if (layoutFailedBlock)
            layoutFailedBlock();
        return nullptr;
    }
    root.release();
    const auto entry = std::make_shared<Entry>();
    entry->screen = std::move(screen);
    entry->layout.reset(item);
    return entry;
}

void NavigationController::show(const std::shared_ptr<Entry>& entry, bool animated)
{
    if (!_stack.empty()) {
        _stack.back()->screen->viewWillDisappear(animated);
        _stack.back()->container->setEnabled(false);
    }
    if (!entry->container)
        entry->container = std::make_unique<DimmingView>(false, _window.contentItem());
    else
        connect(entry->container.get(), &DimmingView::pressedBeside, entry->screen.get(),
                &Screen::pressedBesideSheet);
    _stack.push_back(entry);
    entry->layout->setParentItem(entry->container.get());
    if (auto* glView = entry->layout->findChild<GLKView*>())
        entry->screen->setGLView(glView);
    entry->screen->viewDidLoad();
    fitToWindow(*entry);
    if (animated)
        move(entry, Way::In);
    appear(animated);
}

/// Takes the top screens away, down to the given one; if animated, the top one is seen going.
void NavigationController::leaveFrom(std::size_t first, bool animated)
{
    std::shared_ptr<Entry> top;
    while (_stack.size() > first) {
        std::shared_ptr<Entry> leaving = std::move(_stack.back());
        _stack.pop_back();
        const bool isSeen = animated && !top;
        leaving->screen->viewWillDisappear(isSeen);
        if (isSeen)
            top = std::move(leaving);
        else
            unload(std::move(leaving));
    }
    if (!top)
        return;
    top->container->setEnabled(false);
    move(top, Way::Out);
    if (!_stack.empty())
        _stack.back()->container->setVisible(true);
}

void NavigationController::appear(bool animated)
{
    const std::shared_ptr<Entry> entry = _stack.back();
    entry->container->setVisible(true);
    // Where the dismissal leads further, nothing may be pressed that leads elsewhere.
    entry->container->setEnabled(_isEnabled && !_dismissed);
    if (_isEnabled)
        entry->container->forceActiveFocus();
    entry->screen->viewWillAppear(animated);
    _isAppearing = true;
    _appearsAnimated = animated;
    if (!_moving)
        arrive();
}

void NavigationController::move(std::shared_ptr<Entry> entry, Way way)
{
    Q_ASSERT(!_moving);
    _moving = std::move(entry);
    _way = way;
    place(0.0);
    _motion.start();
}

void NavigationController::place(double progress)
{
    if (!_moving)
        return;
    const double away = _way == Way::In ? 1.0 - progress : progress;
    const QPointF home = _moving->isSheet() ? formSheetFrame(_window.size()).topLeft() : QPointF();
    _moving->container->setOpacity(1.0 - away);
    _moving->layout->setPosition(home + (_moving->isPresented ? QPointF(0.0, presentedWay * away)
                                                              : QPointF(pushedWay * away, 0.0)));
}

/// Ends what moves, also what starts to move only when something else has ended.
void NavigationController::settle()
{
    while (_moving || _isAppearing)
        arrive();
}

/// Ends one motion: what can't be seen any more is hidden or dropped, and the top screen appears.
void NavigationController::arrive()
{
    _motion.stop();
    if (_moving)
        place(1.0);
    if (auto moved = std::exchange(_moving, nullptr); moved && _way == Way::Out)
        unload(std::move(moved));
    disconnect(_firstFrame);
    if (!std::exchange(_isAppearing, false) || _stack.empty())
        return;
    hideWhatIsCovered();
    // A screen has appeared once it has been seen.
    _firstFrame = connect(
        &_window, &QQuickWindow::frameSwapped, this,
        [this, screen = _stack.back()->screen, animated = _appearsAnimated] {
            if (topScreen() == screen.get())
                screen->viewDidAppear(animated);
        },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    _window.update();
    if (const auto dismissed = std::exchange(_dismissed, nullptr)) {
        _stack.back()->container->setEnabled(_isEnabled);
        dismissed();
    }
}

void NavigationController::hideWhatIsCovered()
{
    bool isCovered = false;
    for (auto entry = _stack.rbegin(); entry != _stack.rend(); ++entry) {
        if (isCovered && (*entry)->container->isVisible())
            (*entry)->screen->viewDidDisappear();
        (*entry)->container->setVisible(!isCovered);
        isCovered |= !(*entry)->isSheet() && !(*entry)->screen->showsScreenBelow();
    }
}

void NavigationController::detach(Entry& entry)
{
    for (TouchArea* area : entry.layout->findChildren<TouchArea*>())
        area->setScreen(nullptr);
    entry.screen->setGLView(nullptr);
    entry.container->setParentItem(nullptr);
}

// What asks a screen to go is mostly one of its own buttons: it stays until the next turn.
void NavigationController::unload(std::shared_ptr<Entry> entry)
{
    detach(*entry);
    mainQueue().async([self = QPointer(this), entry = std::move(entry)]() mutable {
        entry.reset();
        // The pictures that a layout has shown would else stay until there are many more.
        if (self)
            self->_engine.collectGarbage();
    });
}

void NavigationController::fitToWindow(Entry& entry)
{
    const QSizeF window = _window.size();
    const QRectF frame = entry.isSheet() ? formSheetFrame(window) : QRectF(QPointF(), window);
    entry.container->setSize(window);
    entry.layout->setPosition(frame.topLeft());
    entry.layout->setSize(frame.size());
    entry.screen->setViewSize(frame.size());
}

} // namespace pelmira
