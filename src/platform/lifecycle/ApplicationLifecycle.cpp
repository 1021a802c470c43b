#include "platform/lifecycle/ApplicationLifecycle.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace pelmira {
namespace {

// A signal handler may do next to nothing, so it only writes a byte here; the event loop reads it.
std::array<int, 2> signalPipe{-1, -1};

void noteSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
}

} // namespace

ApplicationLifecycle::ApplicationLifecycle(QWindow& window, Handlers handlers)
    : _window(window), _handlers(std::move(handlers))
{
    connect(&window, &QWindow::visibilityChanged, this,
            &ApplicationLifecycle::windowVisibilityChanged);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationSuspended || state == Qt::ApplicationHidden)
                    enterBackground();
                else if (state == Qt::ApplicationInactive)
                    resignActive();
                else
                    _isInBackground = false;
            });
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &ApplicationLifecycle::finishWork);
    connect(qGuiApp, &QGuiApplication::aboutToQuit, this, [this] {
        if (_handlers.willQuit)
            _handlers.willQuit();
        finishWork();
    });
    watchSignals();
}

ApplicationLifecycle::~ApplicationLifecycle() = default;

void ApplicationLifecycle::enterBackground()
{
    if (std::exchange(_isInBackground, true))
        return;
    resignActive();
    if (_handlers.didEnterBackground)
        _handlers.didEnterBackground();
}

void ApplicationLifecycle::finishWork()
{
    enterBackground();
    while (_handlers.hasUnfinishedWork && _handlers.hasUnfinishedWork())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    if (_handlers.willTerminate)
        _handlers.willTerminate();
}

void ApplicationLifecycle::resignActive()
{
    if (_handlers.willResignActive)
        _handlers.willResignActive();
}

void ApplicationLifecycle::windowVisibilityChanged(QWindow::Visibility visibility)
{
    if (visibility == QWindow::Hidden || visibility == QWindow::Minimized)
        enterBackground();
    else
        _isInBackground = false;
}

void ApplicationLifecycle::watchSignals()
{
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    _signals = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    connect(_signals.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(signalPipe[0], &byte, 1) > 0) {
        }
        enterBackground();
        _window.hide();
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        sigaction(number, &action, nullptr);
}

} // namespace pelmira
