#include "platform/image/ThumbnailCache.h"

#include "platform/base/Device.h"
#include "platform/image/Image.h"
#include "platform/storage/AtomicFile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>

#include <algorithm>
#include <mutex>
#include <optional>
#include <sys/stat.h>
#include <utility>
#include <variant>

namespace pelmira {
namespace {

const QString uriKey = QStringLiteral("Thumb::URI");
const QString timeKey = QStringLiteral("Thumb::MTime");

// Others may write what they like here. The standard's largest thumbnail is of 1024 pixels.
constexpr qint64 largestFile = 8 << 20;
constexpr int longestSide = 1024;

std::optional<std::int64_t> modificationTime(const QString& path)
{
    struct stat state {};
    if (::stat(QFile::encodeName(path).constData(), &state) != 0 || !S_ISREG(state.st_mode))
        return std::nullopt;
    return state.st_mtim.tv_sec;
}

QSize fitting(QSize size, int side)
{
    if (size.width() <= side && size.height() <= side)
        return size; // a small picture isn't blown up
    return size.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

/// A JPEG can be decoded at an eighth of its size, which takes a fraction of time and memory.
QImage jpegAtSize(const QString& path, int side)
{
    QImageReader reader(path, "jpeg");
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!ImageLimits::forMemory(physicalMemory()).allow(size))
        return {};
    reader.setScaledSize(fitting(size, side));
    return makeBitmapForm(reader.read());
}

QImage make(const QString& path, int side)
{
    if (QImageReader::imageFormat(path) == "jpeg")
        return jpegAtSize(path, side);
    // It may take half of the memory, whatever it is called, and whoever else reads one.
    static std::mutex one;
    const std::lock_guard lock(one);
    const auto result = loadImage(path);
    const QImage* image = std::get_if<QImage>(&result);
    return image ? image->scaled(fitting(image->size(), side), Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation)
                 : QImage();
}

} // namespace

ThumbnailCache::ThumbnailCache()
    : ThumbnailCache(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                     QStringLiteral("/thumbnails"))
{
}

ThumbnailCache::ThumbnailCache(QString folder) : _folder(std::move(folder))
{
}

QByteArray ThumbnailCache::uriFor(const QString& absolutePath)
{
    return "file://" + QFile::encodeName(absolutePath).toPercentEncoding("!$&'()*+,/:=@");
}

QString ThumbnailCache::pathFor(const QString& photoPath, Size size) const
{
    const QByteArray hash =
        QCryptographicHash::hash(uriFor(photoPath), QCryptographicHash::Md5).toHex();
    const QString folder =
        size == Size::Normal ? QStringLiteral("normal") : QStringLiteral("large");
    return QStringLiteral("%1/%2/%3.png").arg(_folder, folder, QString::fromLatin1(hash));
}

QImage ThumbnailCache::thumbnail(const QString& photoPath, Size size) const
{
    // Taken before the photo is read: one that changes meanwhile then doesn't fit any more.
    const auto modified = modificationTime(photoPath);
    if (!modified)
        return {};
    QImage image = lookUp(photoPath, *modified, size);
    if (!image.isNull())
        return image;
    image = make(photoPath, static_cast<int>(size));
    if (!image.isNull())
        keep(image, photoPath, *modified, size);
    return image;
}

QImage ThumbnailCache::lookUp(const QString& photoPath, std::int64_t modified, Size size) const
{
    const QString path = pathFor(photoPath, size);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > largestFile)
        return {};
    QImageReader reader(path, "png");
    const QSize pixels = reader.size();
    if (!pixels.isValid() || std::max(pixels.width(), pixels.height()) > longestSide)
        return {};
    const QImage image = reader.read();
    // Some write the time with a fraction.
    const QString time = image.text(timeKey).section(u'.', 0, 0);
    if (image.isNull() || image.text(uriKey).toUtf8() != uriFor(photoPath) ||
        time != QString::number(modified))
        return {};
    return makeBitmapForm(image);
}

void ThumbnailCache::keep(const QImage& thumbnail, const QString& photoPath, std::int64_t modified,
                          Size size) const
{
    QImage marked = thumbnail; // a writer's own texts can't have a colon in their keys
    marked.setText(uriKey, QString::fromLatin1(uriFor(photoPath)));
    marked.setText(timeKey, QString::number(modified));
    marked.setText(QStringLiteral("Software"), QStringLiteral("Pelmira"));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!marked.save(&buffer, "png"))
        return;
    const QString path = pathFor(photoPath, size);
    // Thumbnails show what may lie in folders that are nobody else's business.
    const QFileInfo folder(QFileInfo(path).path());
    ::mkdir(QFile::encodeName(QFileInfo(_folder).path()).constData(), 0700);
    ::mkdir(QFile::encodeName(_folder).constData(), 0700);
    ::mkdir(QFile::encodeName(folder.filePath()).constData(), 0700);
    (void)writeFileAtomically(path, bytes, IfExists::Replace, Durability::OutlivesProcess, 0600);
}

} // namespace pelmira
