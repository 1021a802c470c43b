#include "shell/AppDelegate.h"

#include "crop/TOCropViewController.h"
#include "mask_editor/ViewController.h"
#include "platform/GLContext.h"
#include "platform/Image.h"
#include "platform/LocalizedStrings.h"
#include "platform/Log.h"
#include "platform/RunLoop.h"
#include "platform/quick/PlatformTypes.h"
#include "shell/PhotoResize.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QSurfaceFormat>

#include <algorithm>
#include <utility>
#include <variant>

namespace pelmira {
namespace {

constexpr QSize firstSize(1100, 760);
constexpr QSize smallestSize(320, 320);
constexpr QSizeF thumbnailBounds(720, 540); // pixels, for the sharpest screens

void setUnlessSet(const char* variable, const char* value)
{
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, value);
}

// The photo is one texture. Without GL there is nothing to ask, and nothing is shown anyway.
bool isTooLargeForGPU(const QImage& photo)
{
    const auto context = GLContext::sharedWithQtQuick();
    return context &&
           std::max(photo.width(), photo.height()) > context->capabilities().maxTextureSize;
}

} // namespace

void AppDelegate::prepareProcess()
{
    // One thread draws everything: the editor's GL and the scene take turns.
    setUnlessSet("QSG_RENDER_LOOP", "basic");
    // Under X11 too the context is EGL's, as everywhere else.
    setUnlessSet("QT_XCB_GL_INTEGRATION", "xcb_egl");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // A stroke wants every point of the finger's way, also those between two frames.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    QCoreApplication::setApplicationName(QStringLiteral("pelmira"));
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGLES);
    format.setVersion(2, 0);
    QSurfaceFormat::setDefaultFormat(format);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
}

AppDelegate::AppDelegate()
    : _resumeWork(ResumeWorkHelper::shared()), _lifecycle(_window, [this] {
          _navigation.applicationDidEnterBackground();
          _resumeWork.finishSavingWorkingImage();
      })
{
    registerPlatformTypes();
    _window.setTitle(QStringLiteral("Pelmira"));
    _window.setColor(QColor(0x10, 0x11, 0x13));
    _window.setMinimumSize(smallestSize);
    _window.resize(firstSize);
    // The saved work lies in a folder inside this one, which nobody else makes.
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!QDir().mkpath(data + QStringLiteral("/pelmira")))
        _openScreen->setMessage(
            localized(QStringLiteral("openscreen.error.workIsNotKept")).arg(data));
    _openScreen->photoChosen = [this](const QString& path) { openPhoto(path); };
    _openScreen->appearedFirst = [this] { offerSavedWork(); };
}

void AppDelegate::applicationDidFinishLaunching(const QString& photoPath)
{
    _navigation.setRoot(_openScreen);
    _window.show();
    if (!photoPath.isEmpty())
        openPhoto(photoPath);
}

void AppDelegate::openPhoto(const QString& path)
{
    _openScreen->setBusy(true);
    globalQueue(QueuePriority::UserInitiated).async([this, path] {
        mainQueue().async([this, path, result = loadImage(path)] {
            _openScreen->setBusy(false);
            if (const auto* problem = std::get_if<ImageProblem>(&result))
                refuse(messageForProblem(*problem, path));
            else
                showCropTool(std::get<QImage>(result), path);
        });
    });
}

void AppDelegate::refuse(const QString& line)
{
    logLine("%s", qPrintable(line));
    _openScreen->setMessage(line);
}

void AppDelegate::showCropTool(const QImage& photo, const QString& path)
{
    _openScreen->setMessage({});
    const auto cropTool = TOCropViewController::initWithImage(photo);
    if (!cropTool)
        return;
    cropTool->popBlock = [this] { _navigation.popViewController(); };
    cropTool->didCropToImage = [this, path](const QImage& cropped, const QRect&) {
        const QImage image = PhotoResize::imageForEditing(cropped);
        if (isTooLargeForGPU(image)) {
            _navigation.popViewController();
            refuse(localized(QStringLiteral("openscreen.error.tooLargeForGPU"))
                       .arg(QFileInfo(path).fileName()));
            return;
        }
        startEditing(image, false);
    };
    _navigation.pushViewController(cropTool);
}

void AppDelegate::offerSavedWork()
{
    const QImage thumbnail =
        _resumeWork.hasSavedWork() ? _resumeWork.savedWorkThumbnail() : QImage();
    if (thumbnail.isNull()) {
        _resumeWork.clearSavedWork();
        return;
    }
    const auto offer = std::make_shared<ResumeView>(
        PhotoResize::resizedImageWithContentMode(thumbnail, thumbnailBounds));
    offer->yesBlock = [this] {
        _openScreen->setResumeView(nullptr);
        if (const QImage image = _resumeWork.savedWorkImage(); !image.isNull())
            startEditing(image, true);
    };
    // The work is kept: the offer comes again at the next launch, unless a new photo replaces it.
    offer->noBlock = [this] { _openScreen->setResumeView(nullptr); };
    _openScreen->setResumeView(offer);
}

void AppDelegate::startEditing(const QImage& image, bool isResume)
{
    if (!isResume) {
        _resumeWork.clearSavedWork();
        _resumeWork.saveWorkingImage(image);
    }
    const auto editor = std::make_shared<ViewController>();
    editor->setResumeWorkHelper(&_resumeWork);
    editor->setImage(image);
    editor->saveBlock = [this](QImage cutOut, CutOutSaver::Completion completion) {
        _saver.save(std::move(cutOut), std::move(completion));
    };
    editor->popBlock = [this] { _navigation.popViewController(); };
    editor->removeCropScreensBlock = [this] { _navigation.removeBelowTop<TOCropViewController>(); };
    _navigation.pushViewController(editor);
}

} // namespace pelmira
