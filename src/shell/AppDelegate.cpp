#include "shell/AppDelegate.h"

#include "controls/StyleUtil.h"
#include "intake/CameraPermissionsHelper.h"
#include "intake/ZKLPhotoPickerHelper.h"
#include "maker/MakerValues.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/LargeBlock.h"
#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/camera/SystemCamera.h"
#include "platform/portal/Clipboard.h"
#include "platform/portal/DesktopSettings.h"
#include "platform/portal/SessionBus.h"
#include "platform/quick/GLKView.h"
#include "platform/quick/PlatformTypes.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"
#include "shell/CommandLine.h"
#include "shell/FirstWindowSize.h"
#include "shell/ScreenTypes.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QSurfaceFormat>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace pelmira {
namespace {

void setUnlessSet(const char* variable, const char* value)
{
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, value);
}

// The photo is one texture. Without GL there is nothing to ask, and nothing is shown anyway.
bool fitsTheGPU(QQuickWindow& window, const QImage& photo)
{
    const auto context = GLKView::makeContext(window);
    return !context ||
           std::max(photo.width(), photo.height()) <= context->capabilities().maxTextureSize;
}

// The system's list of fonts, which takes long to read and is then known to every thread.
void readFonts()
{
    QFontMetricsF(QFont()).height();
}

// In a thread of the toolkit's, while this one asks the window system and the GPU.
std::unique_ptr<QQmlComponent> readHomeLayout(QQmlEngine& engine)
{
    registerPlatformTypes();
    registerScreenTypes();
    return std::make_unique<QQmlComponent>(&engine, layoutUrl("HomeScreen"),
                                           QQmlComponent::Asynchronous);
}

} // namespace

void AppDelegate::prepareProcess()
{
    giveLargeBlocksBack();
    // One thread draws everything: the editor's GL and the scene take turns.
    setUnlessSet("QSG_RENDER_LOOP", "basic");
    // Under X11 too the context is EGL's, as everywhere else.
    setUnlessSet("QT_XCB_GL_INTEGRATION", "xcb_egl");
    // The toolkit's dialogs in a style that keeps to the palette.
    setUnlessSet("QT_QUICK_CONTROLS_STYLE", "Fusion");
    // A stroke wants every point of the finger's way, also those between two frames.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QCoreApplication::setApplicationName(QStringLiteral("pelmira"));
    // By this name a desktop finds the icon of a window.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.pelmira.Pelmira"));
    QGuiApplication::setApplicationDisplayName(makerValues().displayName);
    QCoreApplication::setApplicationVersion(QStringLiteral(PELMIRA_VERSION));
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGLES);
    format.setVersion(2, 0);
    QSurfaceFormat::setDefaultFormat(format);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
}

AppDelegate::AppDelegate()
    : _fonts(std::async(std::launch::async, readFonts)), _homeLayout(readHomeLayout(_engine)),
      _cameraPortal(isInSandbox() ? std::make_unique<CameraPortal>() : nullptr),
      _penMonitor([this] { return _navigation.touchResponders(); }),
      _lifecycle(_window, lifecycleHandlers())
{
    // A damaged build; what is under way is kept for a whole one.
    _navigation.layoutFailedBlock = [] {
        mainQueue().async([] { QCoreApplication::exit(EXIT_FAILURE); });
    };
    _window.setTitle(QStringLiteral("Pelmira"));
    _window.setColor(StyleUtil::ground());
    const QSize freeArea = _window.screen()->availableSize();
    _window.setMinimumSize(smallestWindowSize(freeArea));
    _window.resize(firstWindowSize(freeArea));
    makeApplicationSupportFolder();
    const AppServices all = services();
    ZKLPhotoPickerHelper::shared().setServices(
        {all.dialogs, all.makeCamera, all.requestCameraAccess});
}

// The saved work lies in a folder inside this one, which nobody else makes.
void AppDelegate::makeApplicationSupportFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!QDir().mkpath(data + QStringLiteral("/pelmira")))
        _homeScreen->loader()->setMessage(localized("homescreen.error.workIsNotKept").arg(data));
}

void AppDelegate::applicationDidFinishLaunching(const QStringList& photos)
{
    _navigation.setRoot(_homeScreen);
    _homeLayout.reset();
    _window.show();
    _memoryMonitor.emplace([this] {
        logLine("memory warning");
        _navigation.didReceiveMemoryWarning();
    });
    QObject::connect(&_alert, &Alert::changed, &_navigation, [this] { showAlert(); });
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    defaults.setFailedBlock([this, path = defaults.filePath()] {
        mainQueue().async([this, path] {
            _alert.showMessageInTurn(localized("homescreen.error.preferences").arg(path));
        });
    });
    _homeScreen->openPhotos(photos);
    _flow.start();
}

void AppDelegate::serve(ApplicationService& service)
{
    _service = &service;
    _openRequests.comeToFront = [this] { comeToFront(); };
    _openRequests.openPhotos = [this](const QStringList& photos) {
        _homeScreen->openPhotos(photos);
    };
    _openRequests.keepWork = [this] { _navigation.applicationWillResignActive(); };
    _openRequests.hasCutOut = [this] { return _flow.hasCutOut() || _homeScreen->isGoingOn(); };
    _openRequests.hasUnfinishedWork = [this] {
        return _navigation.hasUnfinishedWork() || _navigation.asksAboutUnsaved() ||
               _homeScreen->isGoingOn();
    };
    service.openBlock = [this](const QStringList& uris) {
        const CommandLine line = CommandLine::parse(uris, {});
        _openRequests.open(line.photos);
        if (!line.problem.isEmpty())
            _alert.showMessageInTurn(line.problem);
    };
}

void AppDelegate::comeToFront()
{
    if (_window.windowStates().testFlag(Qt::WindowMinimized))
        _window.setWindowStates(_window.windowStates() & ~Qt::WindowMinimized);
    _window.show();
    _window.raise();
    _window.requestActivate();
}

// Most runs never ask anything here: it is made for the first question.
void AppDelegate::showAlert()
{
    if (!_alertOverlay) {
        QQmlComponent component(&_engine, layoutUrl("AlertOverlay"));
        _alertOverlay.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
            {{QStringLiteral("alert"), QVariant::fromValue<QObject*>(&_alert)},
             {QStringLiteral("parent"), QVariant::fromValue(_window.contentItem())},
             {QStringLiteral("z"), 1.0}})));
        if (!_alertOverlay)
            logLine("%s", qPrintable(component.errorString()));
    }
    _navigation.setEnabled(!_alert.isOpen());
}

ApplicationLifecycle::Handlers AppDelegate::lifecycleHandlers()
{
    ApplicationLifecycle::Handlers handlers;
    handlers.willResignActive = [this] { _navigation.applicationWillResignActive(); };
    // The system may stop a process in the background at any moment.
    const auto keepAll = [] {
        ResumeWorkHelper::shared().finishSaving();
        UserDefaults::standardUserDefaults().outlivePowerCut();
    };
    handlers.didEnterBackground = [this, keepAll] {
        _navigation.applicationDidEnterBackground();
        keepAll();
    };
    // Another start then waits for the end of this process, and takes its place.
    handlers.willQuit = [this] {
        if (_service)
            _service->openBlock = nullptr;
    };
    handlers.hasUnfinishedWork = [this] { return _navigation.hasUnfinishedWork(); };
    handlers.willTerminate = keepAll;
    return handlers;
}

AppServices AppDelegate::services()
{
    AppServices services;
    services.resumeWork = []() -> ResumeWorkHelper& { return ResumeWorkHelper::shared(); };
    services.dialogs.chooseImage = [this](FileDialogs::Completion completion) {
        _dialogs.chooseImage(std::move(completion));
    };
    services.dialogs.chooseFolder = [this](FileDialogs::Completion completion) {
        _dialogs.chooseFolder(std::move(completion));
    };
    services.makeCamera = [] { return makeSystemCamera(); };
    if (_cameraPortal) {
        services.cameraStatus = [this] {
            return CameraPermissionsHelper::cameraStatus(*_cameraPortal);
        };
        services.requestCameraAccess = [this](std::function<void(bool)> completion) {
            _cameraPortal->requestAccess([completion](CameraPortal::Access access) {
                completion(access != CameraPortal::Access::Denied);
            });
        };
    } else {
        services.cameraStatus = [] { return CameraPermissionsHelper::statusOfDevices(); };
    }
    services.openSettings = &openAppPermissionSettings;
    services.clipboardImage = &Clipboard::image;
    services.canEdit = [this](const QImage& photo) { return fitsTheGPU(_window, photo); };
    services.copyImage = &Clipboard::setPng;
    services.shareFile = [this](const QString& path, auto completion) {
        if (!_openURI)
            _openURI.emplace();
        _openURI->openWith(&_window, path, [completion](PortalOutcome outcome) {
            completion(outcome == PortalOutcome::Done        ? ShareResult::Sent
                       : outcome == PortalOutcome::Cancelled ? ShareResult::Cancelled
                                                             : ShareResult::NothingToChooseFrom);
        });
    };
    services.showFile = [this](const QString& path) {
        if (!_fileManager)
            _fileManager.emplace();
        _fileManager->showFile(&_window, path);
    };
    services.screenBounds = [this] { return QSizeF(_window.screen()->size()); };
    services.openPage = [this](const QUrl& page, PageOpener::Completion completion) {
        if (!_pages)
            _pages.emplace();
        _pages->openPage(&_window, page, std::move(completion));
    };
    services.canSendMail = &MailComposer::canSendMail;
    services.composeMail = [this](const Mail& mail, PageOpener::Completion completion) {
        if (!_mails)
            _mails.emplace();
        _mails->compose(&_window, mail, std::move(completion));
    };
    services.copyText = &Clipboard::setText;
    services.isPhone = [this] { return NavigationController::isPhone(_window.size()); };
    return services;
}

} // namespace pelmira
