#pragma once

#include "platform/lifecycle/ApplicationLifecycle.h"
#include "platform/portal/ApplicationService.h"
#include "platform/portal/CameraPortal.h"
#include "platform/portal/FileManager.h"
#include "platform/portal/MailComposer.h"
#include "platform/portal/MemoryMonitor.h"
#include "platform/portal/OpenURI.h"
#include "platform/portal/PageOpener.h"
#include "platform/quick/NavigationController.h"
#include "platform/quick/PenMonitor.h"
#include "shell/NewHomeScreenVC.h"
#include "shell/OpenRequests.h"
#include "shell/ScreenFlow.h"
#include "shell/SystemFileDialogs.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

#include <future>
#include <memory>
#include <optional>

namespace pelmira {

/// Starts the application: makes the window, the first screen and what serves the screens.
class AppDelegate {
public:
    AppDelegate();

    /// What has to be settled before there is an application object.
    static void prepareProcess();

    /// Shows the window, and opens the first of the photos, given by their paths.
    void applicationDidFinishLaunching(const QStringList& photos);
    /// Opens what other starts of the application hand over.
    void serve(ApplicationService& service);

    QQuickWindow& window() { return _window; }
    NavigationController& navigation() { return _navigation; }
    ScreenFlow& flow() { return _flow; }
    NewHomeScreenVC& homeScreen() { return *_homeScreen; }

private:
    AppServices services();
    ApplicationLifecycle::Handlers lifecycleHandlers();
    void makeApplicationSupportFolder();
    void showAlert();
    void comeToFront();

    const std::future<void> _fonts; ///< read while the rest is made
    QQmlEngine _engine;
    std::unique_ptr<QQmlComponent> _homeLayout; ///< the same, until it is shown
    QQuickWindow _window;
    NavigationController _navigation{_window, _engine};
    SystemFileDialogs _dialogs{_engine, _window};
    std::unique_ptr<CameraPortal> _cameraPortal; ///< in a sandbox only
    // Made when first needed: they go to the session's bus.
    std::optional<OpenURI> _openURI;
    std::optional<FileManager> _fileManager;
    std::optional<PageOpener> _pages;
    std::optional<MailComposer> _mails;
    ScreenFlow _flow{_navigation, services()};
    std::shared_ptr<NewHomeScreenVC> _homeScreen = _flow.makeHomeScreen();
    Alert _alert; ///< over every screen
    std::unique_ptr<QQuickItem> _alertOverlay;
    OpenRequests _openRequests{_navigation, _alert};
    ApplicationService* _service = nullptr;
    std::optional<MemoryMonitor> _memoryMonitor;
    PenMonitor _penMonitor;
    ApplicationLifecycle _lifecycle;
};

} // namespace pelmira
