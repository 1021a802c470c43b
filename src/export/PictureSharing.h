#pragma once

#include "controls/Alert.h"
#include "controls/ZKLProgressHUD.h"
#include "export/ShareFile.h"
#include "export/ShareResult.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// Hands a picture to another application: writes it into the file for sharing, then asks what is
/// to be done with it. Encodes off the main thread; nothing more happens once it is gone. Main
/// thread only.
class PictureSharing : public std::enable_shared_from_this<PictureSharing> {
public:
    struct Picture {
        QImage image;
        /// It is laid on this colour and becomes a JPEG; else it is a PNG with its transparency.
        std::optional<QColor> background;
    };

    /// Alert and HUD outlive it.
    PictureSharing(ShareFile file, Alert& alert, ZKLProgressHUD& progressHUD);

    /// Lets the user open the file in another application.
    std::function<void(const QString& path, std::function<void(ShareResult)> completion)>
        shareFileBlock;
    /// Puts an encoded PNG into the clipboard.
    std::function<void(const QByteArray& png)> copyImageBlock;
    /// `isPreparing` has changed.
    std::function<void()> changedBlock;

    /// The question points at the frame, in points of the screen. One picture at a time.
    void share(const Picture& picture, QRectF frame);
    /// A picture is being encoded.
    bool isPreparing() const { return _isPreparing; }
    const ShareFile& file() const { return _file; }

private:
    template <class Work, class Then>
    void prepare(Work work, Then then);
    void otherShareURL(const QString& path, const Picture& picture, QRectF frame);
    void openWith(const QString& path);
    void copyImage(const Picture& picture);

    const ShareFile _file;
    Alert& _alert;
    ZKLProgressHUD& _progressHUD;
    bool _isPreparing = false;
};

} // namespace pelmira
