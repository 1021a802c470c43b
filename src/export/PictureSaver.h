#pragma once

#include "platform/storage/PhotoLibrary.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QLatin1String>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace pelmira {

/// Encodes pictures and writes them into the photo library, each of it off the main thread. It
/// tells of every step on the main thread, as long as it lives; a picture whose writing has begun
/// is written in any case. Main thread only.
class PictureSaver : public std::enable_shared_from_this<PictureSaver> {
public:
    using Encoder = std::function<QByteArray(const QImage&)>;
    /// Makes a picture, off the main thread; null without memory for it.
    using Picture = std::function<QImage()>;

    /// The HEIF encoder gives no bytes where it can't do its work.
    PictureSaver(PhotoLibrary library, Encoder heifDataWithImage);

    /// The picture is encoded and its writing begins; false if there was no memory to encode it,
    /// and nothing follows.
    std::function<void(bool isEncoded)> encodedBlock;
    /// It lies in the file.
    std::function<void(const QString& path)> writtenBlock;
    /// It could not be written; its bytes are kept.
    std::function<void(SaveProblem problem)> failedBlock;

    /// Transparent, of a shape that isn't too narrow; PNG where HEIF isn't asked for or fails.
    void savePngImage(Picture image, bool asHEIF);
    /// Flat on the colour.
    void saveJpgImage(Picture image, const QColor& bgColor);
    void saveImageData(const QByteArray& data, QLatin1String uti);

    /// Something is being encoded or written.
    bool isAtWork() const { return _jobs > 0; }

    /// Something could not be written and waits for another try.
    bool hasUnsaved() const { return !_unsaved.empty(); }
    /// Writes again what could not be written.
    void retry();
    /// The same, into another folder, where what comes later goes too.
    void retryInFolder(const QString& folder);
    void discardUnsaved() { _unsaved.clear(); }

    const PhotoLibrary& library() const { return _library; }

private:
    struct EncodedPicture {
        QByteArray data;
        QLatin1String uti;
    };

    void encode(std::function<EncodedPicture()> encoder);

    PhotoLibrary _library;
    Encoder _heifDataWithImage;
    std::vector<EncodedPicture> _unsaved;
    int _jobs = 0;
};

} // namespace pelmira
