#pragma once

#include "controls/Alert.h"
#include "controls/ZKLProgressHUD.h"
#include "export/PictureSaver.h"
#include "persistence/preferences/PerstistenceHelper.h"
#include "platform/storage/PhotoLibrary.h"

#include <QColor>
#include <QImage>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// Brings pictures into the library and tells the user how it goes: work while one is encoded,
/// success when its writing begins, and a question when it can't be written. Its bytes are kept
/// until that is answered. One picture at a time; who wants to leave waits until it is written.
/// Main thread only.
class PictureDelivery final : public QObject {
    Q_OBJECT

public:
    /// Makes the picture, off the main thread; null without memory for it.
    using Picture = PictureSaver::Picture;

    /// The HUD and the preferences outlive it.
    PictureDelivery(ZKLProgressHUD& progressHUD, PerstistenceHelper& persistence,
                    const PhotoLibrary& library, PictureSaver::Encoder heifDataWithImage);

    /// Asks for a folder; the completion gets its path, and isn't called if none was chosen.
    std::function<void(std::function<void(const QString& folder)> completion)> chooseFolderBlock;
    /// Shows a saved file in the desktop's file manager.
    std::function<void(const QString& path)> showFileBlock;
    /// The picture was encoded and its writing begins; or there was no memory for it, which is the
    /// caller's to tell.
    using Encoded = std::function<void(bool isEncoded)>;

    void savePngImage(Picture image, bool asHEIF, Encoded encoded);
    void saveJpgImage(Picture image, const QColor& bgColor, Encoded encoded);
    /// A picture is being encoded.
    bool isEncoding() const { return _isEncoding; }
    /// Something is on its way to a file.
    bool isAtWork() const { return _isEncoding || _saver->isAtWork(); }

    /// Goes once every picture is written; one that can't be written keeps the user here.
    void leave(std::function<void()> go);
    /// Who wanted to leave has gone on to something else meanwhile.
    void stay();

    /// Tells that a picture could not be written. It stays when the user turns to another
    /// application, perhaps to make room.
    Alert* problemAlert() { return &_problemAlert; }
    bool asksAboutUnsaved() const { return _problemAlert.isOpen(); }

private:
    void startSaving(Encoded encoded);
    void pictureEncoded(bool isEncoded);
    void pictureWritten(const QString& path);
    void writeFailed(SaveProblem problem);
    void askAgain(SaveProblem problem);
    void chooseFolder();
    void retry(const QString& inFolder = {});
    void showSuccess(bool showsFolder);

    ZKLProgressHUD& _progressHUD;
    PerstistenceHelper& _persistence;
    const std::shared_ptr<PictureSaver> _saver;
    Alert _problemAlert;
    bool _isEncoding = false;
    Encoded _encoded;
    bool _isRetrying = false; ///< nothing was told of success yet
    bool _isFolderTold = false;
    std::function<void()> _leaveWhenWritten;
};

} // namespace pelmira
