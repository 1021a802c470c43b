#include "export/PictureDelivery.h"

#include "platform/text/LocalizedStrings.h"

#include <QDir>
#include <QPointer>

#include <utility>

namespace pelmira {
namespace {

// As a person would write it: the home folder is understood.
QString shortened(const QString& path)
{
    const QString home = QDir::homePath() + u'/';
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
}

} // namespace

PictureDelivery::PictureDelivery(ZKLProgressHUD& progressHUD, PerstistenceHelper& persistence,
                                 const PhotoLibrary& library,
                                 PictureSaver::Encoder heifDataWithImage)
    : _progressHUD(progressHUD), _persistence(persistence),
      _saver(std::make_shared<PictureSaver>(library, std::move(heifDataWithImage)))
{
    _saver->encodedBlock = [this](bool isEncoded) { pictureEncoded(isEncoded); };
    _saver->writtenBlock = [this](const QString& path) { pictureWritten(path); };
    _saver->failedBlock = [this](SaveProblem problem) { writeFailed(problem); };
}

void PictureDelivery::savePngImage(Picture image, bool asHEIF, Encoded encoded)
{
    startSaving(std::move(encoded));
    _saver->savePngImage(std::move(image), asHEIF);
}

void PictureDelivery::saveJpgImage(Picture image, const QColor& bgColor, Encoded encoded)
{
    startSaving(std::move(encoded));
    _saver->saveJpgImage(std::move(image), bgColor);
}

void PictureDelivery::startSaving(Encoded encoded)
{
    _encoded = std::move(encoded);
    _isEncoding = true;
    _progressHUD.show(localized("savescreen.progress.saving"));
    if (!_problemAlert.isOpen()) // else it is still to be chosen what becomes of them
        _saver->discardUnsaved();
}

// The writing has only begun: success is told at once, and what may go wrong yet is told then.
void PictureDelivery::pictureEncoded(bool isEncoded)
{
    _isEncoding = false;
    if (!isEncoded) {
        _leaveWhenWritten = nullptr;
        _progressHUD.dismiss();
    } else if (!_leaveWhenWritten) {
        showSuccess(!_persistence.wasSaveFolderShown());
    }
    if (const Encoded encoded = std::exchange(_encoded, nullptr))
        encoded(isEncoded);
}

void PictureDelivery::showSuccess(bool showsFolder)
{
    QString folder;
    _isFolderTold |= showsFolder;
    if (showsFolder)
        folder =
            localized("savescreen.saveprogress.folder").arg(shortened(_saver->library().folder()));
    _progressHUD.showSuccessWithStatus(localized("savescreen.saveprogress.success"), folder,
                                       showFileBlock ? localized("savescreen.saveprogress.showFile")
                                                     : QString());
}

void PictureDelivery::pictureWritten(const QString& path)
{
    if (std::exchange(_isRetrying, false) && !_isEncoding)
        showSuccess(true);
    if (_isFolderTold) // who leaves while it is written isn't told
        _persistence.setSaveFolderShown();
    _progressHUD.setAction([this, path] {
        if (showFileBlock)
            showFileBlock(path);
    });
    if (_leaveWhenWritten && !isAtWork())
        std::exchange(_leaveWhenWritten, nullptr)();
}

void PictureDelivery::writeFailed(SaveProblem problem)
{
    _leaveWhenWritten = nullptr;
    _isRetrying = false;
    if (!_isEncoding)
        _progressHUD.dismiss();
    askAgain(problem);
}

void PictureDelivery::askAgain(SaveProblem problem)
{
    const QString chooseFolderTitle = localized("savescreen.problem.chooseFolder");
    const QString tryAgainTitle = localized("savescreen.problem.tryAgain");
    _problemAlert.show({localized("savescreen.problem.title"),
                        _saver->library().messageForProblem(problem),
                        localized("savescreen.problem.discard"),
                        chooseFolderBlock ? QStringList{chooseFolderTitle, tryAgainTitle}
                                          : QStringList{tryAgainTitle}},
                       [=, this](const QString& title) {
                           if (title == tryAgainTitle) {
                               retry();
                               return;
                           }
                           askAgain(problem); // the question stands if no folder is chosen
                           chooseFolder();
                       });
}

void PictureDelivery::chooseFolder()
{
    chooseFolderBlock([self = QPointer(this)](const QString& folder) {
        // Another try may have been made beside the dialog.
        if (!self || folder.isEmpty() || !self->_saver->hasUnsaved())
            return;
        self->_problemAlert.dismiss();
        self->retry(folder);
    });
}

void PictureDelivery::retry(const QString& inFolder)
{
    _isRetrying = true;
    _progressHUD.show(localized("savescreen.progress.saving"));
    if (inFolder.isEmpty())
        _saver->retry();
    else
        _saver->retryInFolder(inFolder);
}

void PictureDelivery::leave(std::function<void()> go)
{
    if (!go)
        return;
    if (isAtWork()) {
        _leaveWhenWritten = std::move(go);
        _progressHUD.show(localized("savescreen.progress.saving"));
        return;
    }
    go();
}

void PictureDelivery::stay()
{
    if (std::exchange(_leaveWhenWritten, nullptr) && !_isEncoding)
        _progressHUD.dismiss();
}

} // namespace pelmira
