#pragma once

#include <QObject>
#include <QWindow>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace pelmira {

/// Tells when the application leaves the foreground for good or for a while: its window is hidden,
/// minimised or closed, the system suspends it, the session ends, or a signal asks it to go
/// (SIGTERM, SIGHUP, SIGINT; it then quits). Losing the focus alone is not leaving; it is told by
/// itself, and also before the application leaves, perhaps twice. On quitting the window goes at
/// once, and the process stays until its work is done. Make one, once there is an application
/// object.
class ApplicationLifecycle final : public QObject {
    Q_OBJECT

public:
    struct Handlers {
        std::function<void()> didEnterBackground;
        std::function<void()> willResignActive;
        /// There is no way back.
        std::function<void()> willQuit;
        /// Asked after every event while the process quits.
        std::function<bool()> hasUnfinishedWork;
        /// The last call of all; the session's end may be called off after it.
        std::function<void()> willTerminate;
    };

    ApplicationLifecycle(QWindow& window, Handlers handlers);
    ~ApplicationLifecycle() override;

private:
    void enterBackground();
    void resignActive();
    void finishWork();
    void windowVisibilityChanged(QWindow::Visibility visibility);
    void watchSignals();

    QWindow& _window;
    const Handlers _handlers;
    std::unique_ptr<QSocketNotifier> _signals;
    bool _isInBackground = true; ///< until the window shows
};

} // namespace pelmira
