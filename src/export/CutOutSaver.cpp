#include "export/CutOutSaver.h"

#include "platform/LocalizedStrings.h"
#include "platform/RunLoop.h"

#include <QBuffer>
#include <QByteArray>
#include <QColorSpace>
#include <QDir>
#include <QImageWriter>

#include <utility>
#include <variant>

namespace pelmira {
namespace {

// Of zlib's levels, the last one before time grows much faster than the file shrinks.
constexpr int compressionLevel = 4;

QString lineFor(const QImage& cutOut, const PhotoLibrary& library)
{
    const QByteArray png = pngOfImage(cutOut);
    if (png.isEmpty())
        return library.messageForProblem(SaveProblem::Failed);
    const auto result = library.save(png, QStringLiteral("png"));
    if (const auto* problem = std::get_if<SaveProblem>(&result))
        return library.messageForProblem(*problem);
    return localized(QStringLiteral("mainscreen.notice.saved")).arg(std::get<QString>(result));
}

} // namespace

void CutOutSaver::save(QImage cutOut, Completion completion) const
{
    globalQueue(QueuePriority::UserInitiated)
        .async([library = _library, cutOut = std::move(cutOut),
                completion = std::move(completion)] {
            mainQueue().async([completion, line = lineFor(cutOut, library)] { completion(line); });
        });
}

QByteArray pngOfImage(QImage image)
{
    image.setColorSpace(QColorSpace::SRgb);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    // Qt spreads the levels 9 to 0 over the qualities 0 to 99.
    writer.setQuality((9 - compressionLevel) * 11);
    if (image.isNull() || !writer.write(image))
        return {};
    return buffer.data();
}

} // namespace pelmira
