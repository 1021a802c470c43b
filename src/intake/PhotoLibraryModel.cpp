#include "intake/PhotoLibraryModel.h"

#include "intake/PhotoPermissionsHelper.h"
#include "platform/base/RunInBackground.h"
#include "platform/image/PhotoFormats.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSet>

#include <algorithm>
#include <mutex>
#include <sys/stat.h>
#include <utility>

namespace pelmira {
namespace {

constexpr std::size_t mostPhotos = 200'000; // some tens of megabytes of paths

bool hasPhotoSuffix(const QString& name)
{
    static const QStringList suffixes = photoSuffixes();
    return suffixes.contains(name.section(u'.', -1).toLower());
}

bool isJpegByName(const QString& name)
{
    const QString suffix = name.section(u'.', -1).toLower();
    return suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg");
}

} // namespace

/// What the background looks at to see whether its work is still wanted. Safe from any thread.
struct PhotoLibraryModel::Jobs {
    bool isCurrent(std::uint64_t number) const
    {
        const std::lock_guard lock(mutex);
        return number == scanNumber;
    }
    std::uint64_t nextScan()
    {
        const std::lock_guard lock(mutex);
        return ++scanNumber;
    }
    bool wants(const QString& path) const
    {
        const std::lock_guard lock(mutex);
        return wanted.contains(path);
    }

    mutable std::mutex mutex;
    std::uint64_t scanNumber = 0;
    QSet<QString> wanted;
    QSet<QString> queued; ///< the main thread's alone
    // At its full size a picture may take half of the memory, so no two of them beside each other.
    // A JPEG is read at a fraction of its size.
    SerialQueue wholePictures{"thumbnails", globalQueue(QueuePriority::Default)};
};

PhotoLibraryModel::PhotoLibraryModel(ThumbnailCache cache, qsizetype mostThumbnailBytes)
    : _cache(std::move(cache)), _mostThumbnailBytes(mostThumbnailBytes),
      _jobs(std::make_shared<Jobs>())
{
}

PhotoLibraryModel::~PhotoLibraryModel()
{
    _jobs->nextScan();
    const std::lock_guard lock(_jobs->mutex);
    _jobs->wanted.clear();
}

void PhotoLibraryModel::scan(const QString& folder)
{
    _isScanning = true;
    Q_EMIT scanned();
    const std::uint64_t number = _jobs->nextScan();
    runInBackground(
        [jobs = _jobs, folder, number] {
            return std::pair(PhotoPermissionsHelper::authorizationStatus(folder),
                             photosIn(folder, *jobs, number));
        },
        [model = QPointer<PhotoLibraryModel>(this), jobs = _jobs, number](const auto& found) {
            if (model && jobs->isCurrent(number))
                model->show(found.second, found.first);
        });
}

void PhotoLibraryModel::cancel()
{
    _jobs->nextScan();
    setVisibleRows(0, 0);
    if (!std::exchange(_isScanning, false))
        return;
    Q_EMIT scanned();
}

std::vector<PhotoLibraryModel::Photo>
PhotoLibraryModel::photosIn(const QString& folder, const Jobs& jobs, std::uint64_t number)
{
    std::vector<Photo> photos;
    QDirIterator files(QDir(folder).absolutePath(), QDir::Files | QDir::Readable,
                       QDirIterator::Subdirectories);
    while (files.hasNext() && photos.size() < mostPhotos && jobs.isCurrent(number)) {
        const QString path = files.next();
        struct stat state {};
        if (hasPhotoSuffix(files.fileName()) &&
            ::stat(QFile::encodeName(path).constData(), &state) == 0 && S_ISREG(state.st_mode) &&
            state.st_size > 0)
            photos.push_back({path, std::int64_t{state.st_mtim.tv_sec} * 1000 +
                                        state.st_mtim.tv_nsec / 1'000'000});
    }
    std::sort(photos.begin(), photos.end(), [](const Photo& a, const Photo& b) {
        return a.modified != b.modified ? a.modified > b.modified : a.path < b.path;
    });
    return photos;
}

void PhotoLibraryModel::show(std::vector<Photo> photos, PermissionStatus status)
{
    _isScanning = false;
    _status = status;
    if (photos != _photos) {
        beginResetModel();
        // A photo that was replaced under its name has another time.
        QHash<QString, std::int64_t> times;
        for (const Photo& photo : _photos)
            if (_thumbnailsByPath.contains(photo.path))
                times.insert(photo.path, photo.modified);
        QSet<QString> unchanged;
        for (const Photo& photo : photos)
            if (times.contains(photo.path) && times.value(photo.path) == photo.modified)
                unchanged.insert(photo.path);
        for (auto thumbnail = _thumbnails.begin(); thumbnail != _thumbnails.end();) {
            const auto present = thumbnail++;
            if (unchanged.contains(present->path))
                continue;
            _thumbnailBytes -= present->image.sizeInBytes();
            _thumbnailsByPath.remove(present->path);
            _thumbnails.erase(present);
        }
        _photos = std::move(photos);
        endResetModel();
    }
    setVisibleRows(_firstVisible, _visibleCount);
    Q_EMIT scanned();
}

void PhotoLibraryModel::setVisibleRows(int first, int count)
{
    _firstVisible = std::max(first, 0);
    _visibleCount = std::max(count, 0);
    const int from = std::min(_firstVisible, this->count());
    const int to = from + std::min(_visibleCount, this->count() - from);
    QSet<QString> wanted;
    for (int row = from; row < to; ++row)
        wanted.insert(_photos[static_cast<std::size_t>(row)].path);
    {
        const std::lock_guard lock(_jobs->mutex);
        _jobs->wanted = wanted;
    }
    for (int row = to - 1; row >= from; --row) {
        const auto found = _thumbnailsByPath.find(_photos[static_cast<std::size_t>(row)].path);
        if (found != _thumbnailsByPath.end())
            _thumbnails.splice(_thumbnails.begin(), _thumbnails, *found);
    }
    for (int row = from; row < to; ++row)
        load(_photos[static_cast<std::size_t>(row)].path);
}

void PhotoLibraryModel::load(const QString& path)
{
    if (_thumbnailsByPath.contains(path) || _jobs->queued.contains(path))
        return;
    _jobs->queued.insert(path);
    runInBackground(
        [jobs = _jobs, cache = _cache, path]() -> std::optional<QImage> {
            if (!jobs->wants(path))
                return std::nullopt;
            return cache.thumbnail(path, ThumbnailCache::Size::Large);
        },
        [model = QPointer<PhotoLibraryModel>(this), jobs = _jobs,
         path](const std::optional<QImage>& image) {
            jobs->queued.remove(path);
            if (!model)
                return;
            if (image)
                model->take(path, *image);
            else if (jobs->wants(path)) // scrolled past and back again
                model->load(path);
        },
        isJpegByName(path) ? globalQueue(QueuePriority::Default) : _jobs->wholePictures);
}

void PhotoLibraryModel::take(const QString& path, const QImage& image)
{
    const auto photo = std::find_if(_photos.begin(), _photos.end(),
                                    [&](const Photo& one) { return one.path == path; });
    if (photo == _photos.end() || _thumbnailsByPath.contains(path))
        return;
    _thumbnails.push_front({path, image});
    _thumbnailsByPath.insert(path, _thumbnails.begin());
    _thumbnailBytes += image.sizeInBytes();
    evict();
    const QModelIndex row = index(static_cast<int>(photo - _photos.begin()));
    Q_EMIT dataChanged(row, row, {ThumbnailRole, IsBrokenRole});
}

void PhotoLibraryModel::evict()
{
    while (_thumbnailBytes > _mostThumbnailBytes && !_thumbnails.empty() &&
           !_jobs->wants(_thumbnails.back().path)) {
        _thumbnailBytes -= _thumbnails.back().image.sizeInBytes();
        _thumbnailsByPath.remove(_thumbnails.back().path);
        _thumbnails.pop_back();
    }
}

const QImage* PhotoLibraryModel::thumbnailOf(const QString& path) const
{
    const auto found = _thumbnailsByPath.constFind(path);
    return found == _thumbnailsByPath.constEnd() ? nullptr : &(*found)->image;
}

int PhotoLibraryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant PhotoLibraryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString& path = _photos[static_cast<std::size_t>(index.row())].path;
    const QImage* thumbnail = thumbnailOf(path);
    switch (role) {
    case PathRole:
        return path;
    case NameRole:
    case Qt::DisplayRole:
        return QFileInfo(path).fileName();
    case ThumbnailRole:
        return QVariant::fromValue(thumbnail ? *thumbnail : QImage());
    case IsBrokenRole:
        return thumbnail && thumbnail->isNull();
    default:
        return {};
    }
}

QHash<int, QByteArray> PhotoLibraryModel::roleNames() const
{
    return {{PathRole, "path"},
            {NameRole, "name"},
            {ThumbnailRole, "thumbnail"},
            {IsBrokenRole, "isBroken"}};
}

} // namespace pelmira
