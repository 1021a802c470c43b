#include "export/PictureSharing.h"

#include "export/SaveImageFormatter.h"
#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/encode/PngEncoder.h"
#include "platform/text/LocalizedStrings.h"

#include <QFileInfo>

#include <utility>

namespace pelmira {

PictureSharing::PictureSharing(ShareFile file, Alert& alert, ZKLProgressHUD& progressHUD)
    : _file(std::move(file)), _alert(alert), _progressHUD(progressHUD)
{
}

template <class Work, class Then>
void PictureSharing::prepare(Work work, Then then)
{
    const auto setPreparing = [this](bool isPreparing) {
        _isPreparing = isPreparing;
        if (changedBlock)
            changedBlock();
    };
    _progressHUD.show(localized("savescreen.progress.preparing"));
    setPreparing(true);
    runInBackground(std::move(work), [self = weak_from_this(), setPreparing,
                                      then = std::move(then)](const auto& result) {
        if (const auto alive = self.lock()) {
            setPreparing(false);
            then(result);
        }
    });
}

void PictureSharing::share(const Picture& picture, QRectF frame)
{
    const QString path = picture.background ? _file.shareImagePathJPG() : _file.shareImagePathPNG();
    prepare(
        [file = _file, path, picture] {
            return file.write(path, picture.background
                                        ? jpegDataWithImage(picture.image, *picture.background)
                                        : pngRepresentation(picture.image));
        },
        [this, path, picture, frame](bool isWritten) {
            _progressHUD.dismiss();
            if (isWritten)
                otherShareURL(path, picture, frame);
            else
                _alert.showMessage(localized("savescreen.error.share"));
        });
}

void PictureSharing::otherShareURL(const QString& path, const Picture& picture, QRectF frame)
{
    const QString open = localized("savescreen.share.openWith");
    const QString copy = localized("savescreen.share.copy");
    QStringList actions;
    if (shareFileBlock)
        actions << open;
    if (copyImageBlock)
        actions << copy;
    if (actions.isEmpty()) {
        _alert.showMessage(localized("savescreen.share.noApps"));
        return;
    }
    _alert.show(
        {QFileInfo(path).fileName(), {}, localized("savescreen.savedialog.cancel"), actions},
        [this, path, picture, open, copy](const QString& title) {
            if (title == open)
                openWith(path);
            else if (title == copy)
                copyImage(picture);
        },
        frame);
}

void PictureSharing::openWith(const QString& path)
{
    shareFileBlock(path, [self = weak_from_this(), path](ShareResult result) {
        if (result == ShareResult::Sent)
            logLine("willBeginSendingToApplication %s", qPrintable(path));
        const auto alive = self.lock();
        if (alive && result == ShareResult::NothingToChooseFrom)
            alive->_alert.showMessageInTurn(localized("savescreen.share.noApps"));
    });
}

// Always as PNG, which everything that pastes pictures takes.
void PictureSharing::copyImage(const Picture& picture)
{
    prepare(
        [picture] {
            return pngRepresentation(picture.background
                                         ? imageWithBGColor(picture.image, *picture.background)
                                         : picture.image);
        },
        [this](const QByteArray& png) {
            if (png.isEmpty()) {
                _progressHUD.dismiss();
                _alert.showMessage(localized("savescreen.error.encode"));
                return;
            }
            copyImageBlock(png);
            _progressHUD.showSuccessWithStatus(localized("savescreen.share.copied"));
        });
}

} // namespace pelmira
