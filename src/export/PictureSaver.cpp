#include "export/PictureSaver.h"

#include "export/SaveImageFormatter.h"
#include "export/UniformType.h"
#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/encode/PngEncoder.h"

#include <utility>
#include <variant>

namespace pelmira {

PictureSaver::PictureSaver(PhotoLibrary library, Encoder heifDataWithImage)
    : _library(std::move(library)), _heifDataWithImage(std::move(heifDataWithImage))
{
}

void PictureSaver::savePngImage(Picture image, bool asHEIF)
{
    encode([image = std::move(image),
            heif = asHEIF ? _heifDataWithImage : Encoder()]() -> EncodedPicture {
        const QImage formated = SaveImageFormatter::formatedPngImageForSaving(image());
        if (heif) {
            if (QByteArray data = heif(formated); !data.isEmpty())
                return {std::move(data), AVFileTypeHEIC};
        }
        return {pngRepresentation(formated), kUTTypePNG};
    });
}

void PictureSaver::saveJpgImage(Picture image, const QColor& bgColor)
{
    encode([image = std::move(image), bgColor]() -> EncodedPicture {
        return {jpegDataWithImage(image(), bgColor), kUTTypeJPEG};
    });
}

void PictureSaver::encode(std::function<EncodedPicture()> encoder)
{
    ++_jobs;
    runInBackground(std::move(encoder), [self = weak_from_this()](const EncodedPicture& picture) {
        const std::shared_ptr<PictureSaver> saver = self.lock();
        if (!saver)
            return;
        const bool isEncoded = !picture.data.isEmpty();
        if (isEncoded)
            saver->saveImageData(picture.data, picture.uti);
        --saver->_jobs;
        if (saver->encodedBlock)
            saver->encodedBlock(isEncoded);
    });
}

void PictureSaver::saveImageData(const QByteArray& data, QLatin1String uti)
{
    ++_jobs;
    runInBackground(
        [library = _library, data, uti] { return library.save(data, suffixForType(uti)); },
        [self = weak_from_this(), data, uti](const std::variant<QString, SaveProblem>& result) {
            const auto* path = std::get_if<QString>(&result);
            logLine(path ? "image saved" : "image not saved");
            const std::shared_ptr<PictureSaver> saver = self.lock();
            if (!saver)
                return;
            --saver->_jobs;
            if (path) {
                if (saver->writtenBlock)
                    saver->writtenBlock(*path);
                return;
            }
            saver->_unsaved.push_back({data, uti});
            if (saver->failedBlock)
                saver->failedBlock(std::get<SaveProblem>(result));
        });
}

void PictureSaver::retry()
{
    for (const EncodedPicture& picture : std::exchange(_unsaved, {}))
        saveImageData(picture.data, picture.uti);
}

void PictureSaver::retryInFolder(const QString& folder)
{
    _library = PhotoLibrary::inFolder(folder);
    retry();
}

} // namespace pelmira
