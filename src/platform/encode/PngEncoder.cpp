#include "platform/encode/PngEncoder.h"

#include "platform/base/ParallelJobs.h"
#include "platform/encode/DeflatePart.h"
#include "platform/encode/PngFilter.h"
#include "platform/image/Image.h"

#include <QtEndian>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <libdeflate.h>
#include <memory>
#include <new>
#include <vector>
#include <zlib.h>

namespace pelmira {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Below it files of smooth pictures are a tenth larger than zlib's default level makes them; above
// it time grows much faster than they shrink.
constexpr int compressionLevel = 6;
// What is compressed at a time: many times what a match can reach back, and little beside an image.
constexpr qsizetype bandBytes = 1 << 20;
constexpr std::size_t margin = 4; // the pixel left of the first one

struct Band {
    Bytes deflated;
    std::uint32_t adler = 0;
    std::size_t length = 0; // before compression
};

/// What one thread needs.
struct Worker {
    DeflatePart deflate{compressionLevel};
    Bytes row;
    Bytes above;
    Bytes scratch;
    Bytes filtered;
};

/// R, G, B, A, straight. What can't be seen has no colour either: it would tell what was removed.
void readRow(const QImage& bitmap, int y, std::uint8_t* to)
{
    const auto* pixels = reinterpret_cast<const QRgb*>(bitmap.constScanLine(y));
    for (int x = 0; x < bitmap.width(); ++x, to += 4) {
        const QRgb pixel = qUnpremultiply(pixels[x]);
        to[0] = static_cast<std::uint8_t>(qRed(pixel));
        to[1] = static_cast<std::uint8_t>(qGreen(pixel));
        to[2] = static_cast<std::uint8_t>(qBlue(pixel));
        to[3] = static_cast<std::uint8_t>(qAlpha(pixel));
    }
}

Band bandOf(const QImage& bitmap, int top, int bottom, Worker& worker)
{
    const auto length = static_cast<std::size_t>(bitmap.width()) * 4;
    worker.row.assign(margin + length, 0);
    worker.above.assign(margin + length, 0);
    worker.scratch.resize(length);
    worker.filtered.resize((length + 1) * static_cast<std::size_t>(bottom - top));
    if (top > 0)
        readRow(bitmap, top - 1, worker.above.data() + margin);
    for (int y = top; y < bottom; ++y) {
        readRow(bitmap, y, worker.row.data() + margin);
        filterPngRow(worker.row.data() + margin, worker.above.data() + margin, length,
                     worker.filtered.data() + (length + 1) * static_cast<std::size_t>(y - top),
                     worker.scratch.data());
        worker.row.swap(worker.above);
    }
    Band band;
    band.length = worker.filtered.size();
    band.adler = libdeflate_adler32(1, worker.filtered.data(), band.length);
    band.deflated = worker.deflate.compress(worker.filtered, bottom == bitmap.height()
                                                                 ? DeflatePart::Position::Last
                                                                 : DeflatePart::Position::Inner);
    return band;
}

/// No bands if one of them could not be made.
std::vector<Band> bandsOf(const QImage& bitmap)
{
    const int rows = static_cast<int>(std::max<qsizetype>(1, bandBytes / (bitmap.width() * 4 + 1)));
    std::vector<Band> bands(static_cast<std::size_t>((bitmap.height() - 1) / rows + 1));
    std::vector<std::unique_ptr<Worker>> workers(parallelWorkers());
    std::atomic<bool> isFailed = false;
    doInParallel(bands.size(), [&](std::size_t i, unsigned number) {
        if (isFailed)
            return;
        try {
            if (!workers[number])
                workers[number] = std::make_unique<Worker>();
            const int top = static_cast<int>(i) * rows;
            bands[i] = bandOf(bitmap, top, std::min(bitmap.height(), top + rows), *workers[number]);
        } catch (const std::bad_alloc&) {
        }
        if (bands[i].deflated.empty())
            isFailed = true;
    });
    if (isFailed)
        bands.clear();
    return bands;
}

void appendNumber(QByteArray& to, std::uint32_t number)
{
    const std::uint32_t bigEndian = qToBigEndian(number);
    to.append(reinterpret_cast<const char*>(&bigEndian), 4);
}

void appendChunk(QByteArray& to, const char* type, QByteArrayView data)
{
    appendNumber(to, static_cast<std::uint32_t>(data.size()));
    const qsizetype start = to.size();
    to.append(type, 4).append(data);
    appendNumber(to, libdeflate_crc32(0, to.constData() + start,
                                      static_cast<std::size_t>(to.size() - start)));
}

QByteArray header(QSize size)
{
    QByteArray bytes;
    appendNumber(bytes, static_cast<std::uint32_t>(size.width()));
    appendNumber(bytes, static_cast<std::uint32_t>(size.height()));
    return bytes.append("\x08\x06\0\0\0", 5); // 8 bits, RGBA; the only packing; not interlaced
}

QByteArray encoded(const QImage& bitmap)
{
    std::vector<Band> bands = bandsOf(bitmap);
    if (bands.empty())
        return {};
    qsizetype length = 1 << 10;
    for (const Band& band : bands)
        length += static_cast<qsizetype>(band.deflated.size()) + 12;
    QByteArray png;
    png.reserve(length);
    png.append("\x89PNG\r\n\x1A\n", 8);
    appendChunk(png, "IHDR", header(bitmap.size()));
    appendChunk(png, "sRGB", QByteArrayView("\0", 1)); // perceptual, as for photos
    appendChunk(png, "IDAT", "\x78\x9C");              // deflate with the whole window
    std::uint32_t adler = 1;
    for (Band& band : bands) {
        adler = static_cast<std::uint32_t>(
            adler32_combine(adler, band.adler, static_cast<z_off_t>(band.length)));
        appendChunk(png, "IDAT", band.deflated);
        band.deflated = {}; // so that the file never lies in memory twice
    }
    const std::uint32_t check = qToBigEndian(adler);
    appendChunk(png, "IDAT", QByteArrayView(reinterpret_cast<const char*>(&check), 4));
    appendChunk(png, "IEND", {});
    return png;
}

} // namespace

QByteArray pngRepresentation(const QImage& image)
{
    try {
        const QImage bitmap = bitmapPixels(image);
        return bitmap.isNull() ? QByteArray() : encoded(bitmap);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace pelmira
