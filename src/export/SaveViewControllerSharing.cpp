#include "export/SaveViewController.h"

#include "platform/base/Log.h"
#include "platform/encode/JpegEncoder.h"
#include "platform/encode/PngEncoder.h"
#include "platform/text/LocalizedStrings.h"

#include <QFileInfo>

#include <utility>

// What the save screen does to hand a picture to another application.

namespace pelmira {
namespace {

constexpr double jpegQuality = 0.9;

QString text(const char* key)
{
    return localized(QLatin1String(key));
}

} // namespace

void SaveViewController::otherSaveJPGFromRect(QRectF rect)
{
    otherSave(
        shareImagePathJPG(),
        [image = _image, color = _jpgImageView.backgroundColor()] {
            return jpegRepresentation(imageWithBGColor(image, color), jpegQuality);
        },
        rect);
}

void SaveViewController::otherSavePNGFromRect(QRectF rect)
{
    otherSave(
        shareImagePathPNG(), [image = _image] { return pngRepresentation(image); }, rect);
}

void SaveViewController::otherSave(const QString& path, std::function<QByteArray()> encoder,
                                   QRectF rect)
{
    if (!isReady())
        return;
    _progressHUD.show(text("savescreen.progress.preparing"));
    run<bool>([file = _shareFile, path,
               encoder = std::move(encoder)] { return file.write(path, encoder()); },
              [this, path, rect](const bool& isWritten) {
                  _progressHUD.dismiss();
                  if (isWritten)
                      otherShareURL(path, rect);
                  else
                      showMessage(text("savescreen.error.share"));
              });
}

void SaveViewController::otherShareURL(const QString& path, QRectF rect)
{
    const QString openWith = text("savescreen.share.openWith");
    const QString copy = text("savescreen.share.copy");
    QStringList actions;
    if (shareFileBlock)
        actions << openWith;
    if (copyImageBlock)
        actions << copy;
    if (actions.isEmpty()) {
        showMessage(text("savescreen.share.noApps"));
        return;
    }
    _alert.show(
        {QFileInfo(path).fileName(), {}, text("savescreen.savedialog.cancel"), actions},
        [=, this](const QString& title) {
            if (title == copy) {
                copyImage(path);
                return;
            }
            shareFileBlock(path, [self = weak_from_this(), path](ShareResult result) {
                if (result == ShareResult::Sent)
                    logLine("willBeginSendingToApplication %s", qPrintable(path));
                const auto screen = self.lock();
                if (screen && result == ShareResult::NothingToChooseFrom)
                    screen->showMessage(text("savescreen.share.noApps"));
            });
        },
        rect);
}

// Always as PNG, which everything that pastes pictures takes.
void SaveViewController::copyImage(const QString& path)
{
    _progressHUD.show(text("savescreen.progress.preparing"));
    const bool isFlat = path == shareImagePathJPG();
    run<QByteArray>(
        [image = _image, isFlat, color = _jpgImageView.backgroundColor()] {
            return pngRepresentation(isFlat ? imageWithBGColor(image, color) : image);
        },
        [this](const QByteArray& png) {
            copyImageBlock(png);
            _progressHUD.showSuccessWithStatus(text("savescreen.share.copied"));
        });
}

} // namespace pelmira
