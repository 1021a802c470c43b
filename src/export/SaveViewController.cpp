#include "export/SaveViewController.h"

#include "platform/base/Log.h"
#include "platform/text/LocalizedStrings.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr double secondsForIndicatorToShow = 0.01;

QString text(const char* key)
{
    return localized(QLatin1String(key));
}

// As a person would write it: the home folder is understood.
QString shortened(const QString& path)
{
    const QString home = QDir::homePath() + u'/';
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
}

} // namespace

SaveViewController::SaveViewController(UserDefaults& defaults, const PhotoLibrary& library,
                                       ShareFile shareFile, const HeifEncoder& heifEncoder)
    : _persistence(defaults), _shareFile(std::move(shareFile)), _heifEncoder(heifEncoder),
      _saver(std::make_shared<PictureSaver>(library, heifEncoder.heifDataWithImage))
{
    _jpgImageView.setBackgroundColor(Qt::white);
    _saver->encodedBlock = [this](bool isEncoded) { pictureEncoded(isEncoded); };
    _saver->writtenBlock = [this](const QString& path) { pictureWritten(path); };
    _saver->failedBlock = [this](SaveProblem problem) { writeFailed(problem); };
    updateButtons();
}

SaveViewController::SaveViewController(UserDefaults& defaults)
    : SaveViewController(defaults, PhotoLibrary(), ShareFile(), HeifEncoder())
{
}

SaveViewController::~SaveViewController()
{
    logLine("SaveViewController dealloc");
}

QUrl SaveViewController::layoutFile() const
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/SaveScreen.qml"));
}

QString SaveViewController::title() const
{
    return text("generic.save");
}

QString SaveViewController::homeTitle() const
{
    return text("generic.home");
}

QString SaveViewController::whiteBackgroundLabel() const
{
    return text("savescreen.label.whitebg");
}

QString SaveViewController::transparentBackgroundLabel() const
{
    return text("savescreen.label.transparentbg");
}

QString SaveViewController::cleanEdgesLabel() const
{
    return text("savescreen.edges.label");
}

QString SaveViewController::cleanEdgesMessage() const
{
    return text("savescreen.edges.message");
}

void SaveViewController::viewDidLoad()
{
    _cleanEdgesSwitch.setSelected(_persistence.savesCleanEdges());
    if (_heifEncoder.canWrite()) {
        _useHeifSwitch.setSelected(_persistence.saveTransparentAsHEIF());
    } else {
        _isHeifContainerVisible = false;
        _persistence.setSaveTransparentAsHEIF(false);
    }
    localizeHeif();
    updateTransparentFormatLabel();
}

void SaveViewController::localizeHeif()
{
    _useHEIFLabel = text("savescreen.heif.switch.label");
    _useHEIFTitle = text("savescreen.heif.title");
    _useHEIFMessage = text("savescreen.heif.message");
    Q_EMIT heifChanged();
}

void SaveViewController::updateTransparentFormatLabel()
{
    _transparentFormatLabel =
        _persistence.saveTransparentAsHEIF() ? QStringLiteral("HEIF") : QStringLiteral("PNG");
    Q_EMIT heifChanged();
}

void SaveViewController::viewDidAppear(bool)
{
    if (!_image.isNull() || std::exchange(_isRendering, true))
        return;
    _progressHUD.show(text("savescreen.progress.preparing"));
    _renderTimer = Timer::scheduled(secondsForIndicatorToShow, [this] { render(); });
}

void SaveViewController::render()
{
    const auto owner = delegate.lock();
    if (!owner) {
        _progressHUD.dismiss();
        _isRendering = false;
        updateButtons();
        return;
    }
    _renderer.render(
        *owner, _persistence.savesCleanEdges(),
        [this](const QImage& image, const QImage& preview) { setImage(image, preview); });
}

void SaveViewController::setImage(const QImage& image, const QImage& preview)
{
    _isRendering = false;
    _image = image;
    _jpgImageView.setImage(preview);
    _pngImageView.setImage(preview);
    _progressHUD.dismiss();
    updateButtons();
    if (image.isNull())
        showMessage(text("savescreen.error.render"));
}

void SaveViewController::setBusy(bool isBusy)
{
    _isBusy = isBusy;
    updateButtons();
}

void SaveViewController::updateButtons()
{
    for (InterfaceButton* button :
         {&_saveJPGButton, &_otherJPGButton, &_savePNGButton, &_otherPNGButton})
        button->setEnabled(isReady());
    _cleanEdgesSwitch.setEnabled(!_isBusy);
    _useHeifSwitch.setEnabled(!_isBusy);
}

// The previews show the last picture until the new one is there; only then can it be saved.
void SaveViewController::handleCleanEdgesSwitchToggled(bool isOn)
{
    if (_isBusy || _alert.isOpen() || isOn == _cleanEdgesSwitch.isSelected())
        return;
    _cleanEdgesSwitch.setSelected(isOn);
    _persistence.setSavesCleanEdges(isOn);
    _renderTimer = {}; // of a first picture that hasn't begun
    _isRendering = true;
    updateButtons();
    render();
}

void SaveViewController::handleUseHeifSwitchToggled(bool isOn)
{
    if (_isBusy || !_isHeifContainerVisible)
        return;
    _useHeifSwitch.setSelected(isOn);
    _persistence.setSaveTransparentAsHEIF(isOn);
    updateTransparentFormatLabel();
}

void SaveViewController::saveJPG()
{
    if (isReady())
        savePhotoAsTransparent(false);
}

void SaveViewController::savePNG()
{
    if (isReady())
        savePhotoAsTransparent(true);
}

void SaveViewController::savePhotoAsTransparent(bool transparent)
{
    const QString highRes = text("savescreen.savedialog.highres");
    const QString lowRes = text("savescreen.savedialog.lowres");
    _progressHUD.dismiss(); // of an earlier picture
    _alert.show({text("savescreen.savedialog.title"),
                 {},
                 text("savescreen.savedialog.cancel"),
                 QStringList{highRes, lowRes}},
                [=, this](const QString& title) {
                    if (title == highRes)
                        saveHighResAsTransparent(transparent);
                    else if (title == lowRes)
                        saveLowResAsTransparent(transparent);
                });
}

void SaveViewController::saveHighResAsTransparent(bool transparent)
{
    saveImage(_image, transparent);
}

void SaveViewController::saveLowResAsTransparent(bool transparent)
{
    _isSaving = true;
    _progressHUD.show(text("savescreen.progress.saving"));
    run<QImage>([image = _image] { return lowResolution(image); },
                [=, this](const QImage& image) { saveImage(image, transparent); });
}

void SaveViewController::saveImage(const QImage& image, bool transparent)
{
    _isSaving = true;
    setBusy(true);
    _progressHUD.show(text("savescreen.progress.saving"));
    _saver->discardUnsaved();
    if (transparent)
        _saver->savePngImage(image, _persistence.saveTransparentAsHEIF());
    else
        _saver->saveJpgImage(image, _jpgImageView.backgroundColor());
}

// The writing has only begun: success is told at once, and what may go wrong yet is told then.
void SaveViewController::pictureEncoded(bool isEncoded)
{
    _isSaving = false;
    setBusy(false);
    if (!isEncoded) {
        _leaveWhenWritten = nullptr;
        _progressHUD.dismiss();
        showMessage(text("savescreen.error.encode"));
    } else if (!_leaveWhenWritten) {
        showSuccess(!_persistence.wasSaveFolderShown());
    }
}

void SaveViewController::showSuccess(bool showsFolder)
{
    QString folder;
    if (showsFolder)
        folder = text("savescreen.saveprogress.folder").arg(shortened(_saver->library().folder()));
    _progressHUD.showSuccessWithStatus(text("savescreen.saveprogress.success"), folder,
                                       showFileBlock ? text("savescreen.saveprogress.showFile")
                                                     : QString());
}

void SaveViewController::pictureWritten(const QString& path)
{
    _persistence.setSaveFolderShown();
    if (std::exchange(_isRetrying, false) && !_isBusy)
        showSuccess(true);
    _progressHUD.setAction([this, path] {
        if (showFileBlock)
            showFileBlock(path);
    });
    if (_leaveWhenWritten && !_isSaving && !_saver->isAtWork())
        std::exchange(_leaveWhenWritten, nullptr)();
}

void SaveViewController::writeFailed(SaveProblem problem)
{
    _leaveWhenWritten = nullptr;
    _isRetrying = false;
    if (!_isBusy)
        _progressHUD.dismiss();
    const QString chooseFolder = text("savescreen.problem.chooseFolder");
    const QString tryAgain = text("savescreen.problem.tryAgain");
    _saveProblemAlert.show(
        {text("savescreen.problem.title"), _saver->library().messageForProblem(problem),
         text("savescreen.problem.discard"),
         chooseFolderBlock ? QStringList{chooseFolder, tryAgain} : QStringList{tryAgain}},
        [=, this](const QString& title) {
            if (title == tryAgain) {
                retry();
                return;
            }
            writeFailed(problem); // the question stands if no folder is chosen
            chooseFolderBlock([self = weak_from_this()](const QString& folder) {
                const auto screen = self.lock();
                if (!screen || folder.isEmpty())
                    return;
                screen->_saveProblemAlert.dismiss();
                screen->retry(folder);
            });
        });
}

void SaveViewController::retry(const QString& inFolder)
{
    _isRetrying = true;
    _progressHUD.show(text("savescreen.progress.saving"));
    if (inFolder.isEmpty())
        _saver->retry();
    else
        _saver->retryInFolder(inFolder);
}

void SaveViewController::showMessage(const QString& message)
{
    _alert.show({{}, message, text("generic.done"), QStringList()}, [](const QString&) {});
}

void SaveViewController::homeButtonTapped()
{
    leave(homeBlock);
}

void SaveViewController::doneButtonPressed()
{
    leave([this] {
        if (dismissBlock)
            dismissBlock({});
    });
}

void SaveViewController::leave(std::function<void()> go)
{
    if (!go)
        return;
    if (hasUnfinishedWork()) {
        _leaveWhenWritten = std::move(go);
        _progressHUD.show(text("savescreen.progress.saving"));
        return;
    }
    go();
}

void SaveViewController::applicationWillResignActive()
{
    logLine(_alert.isOpen() ? "Dismissing active alert before being backgrounded"
                            : "No alert to dismiss");
    _alert.dismiss();
}

} // namespace pelmira
