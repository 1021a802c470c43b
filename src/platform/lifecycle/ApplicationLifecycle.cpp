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

ApplicationLifecycle::ApplicationLifecycle(QWindow& window,
                                           std::function<void()> didEnterBackground,
                                           std::function<void()> willResignActive)
    : _didEnterBackground(std::move(didEnterBackground)),
      _willResignActive(std::move(willResignActive))
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
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this,
            &ApplicationLifecycle::enterBackground);
    connect(qGuiApp, &QGuiApplication::aboutToQuit, this, &ApplicationLifecycle::enterBackground);
    watchSignals();
}

ApplicationLifecycle::~ApplicationLifecycle() = default;

void ApplicationLifecycle::enterBackground()
{
    if (std::exchange(_isInBackground, true))
        return;
    resignActive();
    _didEnterBackground();
}

void ApplicationLifecycle::resignActive()
{
    if (_willResignActive)
        _willResignActive();
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
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        sigaction(number, &action, nullptr);
}

} // namespace pelmira
