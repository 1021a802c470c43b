#include "platform/image/ExifOrientation.h"

#include <QTransform>
#include <QtEndian>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace pelmira {
namespace {

constexpr std::uint16_t orientationTag = 0x0112;
constexpr std::int64_t entrySize = 12; // tag, type, count, value

/// As much of a part as there is.
QByteArrayView part(QByteArrayView bytes, std::int64_t at, std::int64_t length)
{
    at = std::clamp<std::int64_t>(at, 0, bytes.size());
    length = std::clamp<std::int64_t>(length, 0, bytes.size() - at);
    return bytes.sliced(static_cast<qsizetype>(at), static_cast<qsizetype>(length));
}

template <class Number>
std::optional<Number> numberAt(QByteArrayView bytes, std::int64_t at, bool isBigEndian)
{
    const QByteArrayView number = part(bytes, at, sizeof(Number));
    if (number.size() != sizeof(Number))
        return std::nullopt;
    return isBigEndian ? qFromBigEndian<Number>(number.data())
                       : qFromLittleEndian<Number>(number.data());
}

/// A file made of chunks: each has eight bytes of length and name, the contents, and what follows.
struct Container {
    int firstChunk;
    int lengthAt; ///< of the eight bytes
    int nameAt;
    bool isBigEndian;
    int after;            ///< bytes of a checksum
    std::int64_t padding; ///< contents take a multiple of so many bytes
};
constexpr Container png{8, 0, 4, true, 4, 1};
constexpr Container riff{12, 4, 0, false, 0, 2};

QByteArrayView chunkOf(QByteArrayView file, const Container& form, QByteArrayView name)
{
    std::int64_t at = form.firstChunk;
    while (const auto length =
               numberAt<std::uint32_t>(file, at + form.lengthAt, form.isBigEndian)) {
        if (part(file, at + form.nameAt, name.size()) == name)
            return part(file, at + 8, *length);
        at += 8 + (*length + form.padding - 1) / form.padding * form.padding + form.after;
    }
    return {};
}

QByteArrayView exifBlockOf(QByteArrayView file)
{
    if (file.startsWith("\x89PNG\r\n\x1a\n"))
        return chunkOf(file, png, "eXIf");
    if (!file.startsWith("RIFF") || part(file, 8, 4) != QByteArrayView("WEBP"))
        return {};
    const QByteArrayView block = chunkOf(file, riff, "EXIF");
    // Some put the name before it that it has in JPEG.
    constexpr QByteArrayView name("Exif\0\0", 6);
    return block.startsWith(name) ? block.sliced(name.size()) : block;
}

} // namespace

int exifOrientation(QByteArrayView file)
{
    const QByteArrayView exif = exifBlockOf(file);
    const bool isBigEndian = exif.startsWith("MM");
    if (!isBigEndian && !exif.startsWith("II"))
        return 1;
    const std::int64_t directory = numberAt<std::uint32_t>(exif, 4, isBigEndian).value_or(0);
    const int entries = numberAt<std::uint16_t>(exif, directory, isBigEndian).value_or(0);
    for (int i = 0; i < entries; ++i) {
        const std::int64_t entry = directory + 2 + i * entrySize;
        const auto tag = numberAt<std::uint16_t>(exif, entry, isBigEndian);
        if (!tag)
            break;
        if (*tag != orientationTag)
            continue;
        const int value = numberAt<std::uint16_t>(exif, entry + 8, isBigEndian).value_or(1);
        return value >= 1 && value <= 8 ? value : 1;
    }
    return 1;
}

QImage turnedUpright(QImage image, int exifOrientation)
{
    const bool isMirrored = exifOrientation == 2 || exifOrientation == 4 || exifOrientation == 5 ||
                            exifOrientation == 7;
    if (isMirrored)
        image = std::move(image).mirrored(true, false);
    const int quarterTurns = exifOrientation == 3 || exifOrientation == 4   ? 2
                             : exifOrientation == 5 || exifOrientation == 8 ? 3
                             : exifOrientation == 6 || exifOrientation == 7 ? 1
                                                                            : 0;
    return quarterTurns == 0 ? image : image.transformed(QTransform().rotate(90.0 * quarterTurns));
}

} // namespace pelmira
