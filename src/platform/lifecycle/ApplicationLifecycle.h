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
/// itself, and also before the application leaves, perhaps twice. Make one, once there is an
/// application object.
class ApplicationLifecycle final : public QObject {
    Q_OBJECT

public:
    ApplicationLifecycle(QWindow& window, std::function<void()> didEnterBackground,
                         std::function<void()> willResignActive = {});
    ~ApplicationLifecycle() override;

private:
    void enterBackground();
    void resignActive();
    void windowVisibilityChanged(QWindow::Visibility visibility);
    void watchSignals();

    std::function<void()> _didEnterBackground;
    std::function<void()> _willResignActive;
    std::unique_ptr<QSocketNotifier> _signals;
    bool _isInBackground = true; ///< until the window shows
};

} // namespace pelmira
