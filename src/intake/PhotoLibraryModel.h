#pragma once

#include "intake/PermissionStatus.h"
#include "platform/image/ThumbnailCache.h"

#include <QAbstractListModel>
#include <QHash>
#include <QImage>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <list>
#include <memory>
#include <vector>

namespace pelmira {

/// The photos of a folder and of the folders in it, newest first, for a grid. The folder is read
/// and thumbnails are loaded off the main thread; thumbnails only for the rows that the grid says
/// it shows, and what has been scrolled past before its turn is left out. However many photos there
/// are, thumbnails take no more memory than they are allowed, or than the visible rows need. A
/// photo is told by its suffix here, by its contents when it is opened. Hidden files and folders,
/// links to folders, and what can't be read are left out. Main thread only.
class PhotoLibraryModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY scanned)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY scanned)
    Q_PROPERTY(bool isAuthorised READ isAuthorised NOTIFY scanned)

public:
    enum Role { PathRole = Qt::UserRole + 1, NameRole, ThumbnailRole, IsBrokenRole };

    explicit PhotoLibraryModel(ThumbnailCache cache = ThumbnailCache(),
                               qsizetype mostThumbnailBytes = 48 << 20);
    ~PhotoLibraryModel() override;

    /// Reads the folder, in place of a reading that is under way. What is shown stays until then.
    Q_INVOKABLE void scan(const QString& folder);
    /// Stops reading the folder and loading thumbnails.
    Q_INVOKABLE void cancel();
    /// The rows that are shown, from the first on; their thumbnails come, the topmost first.
    Q_INVOKABLE void setVisibleRows(int first, int count);

    int count() const { return static_cast<int>(_photos.size()); }
    bool isScanning() const { return _isScanning; }
    PermissionStatus status() const { return _status; }
    bool isAuthorised() const
    {
        return _status == PermissionStatus::Authorized || _status == PermissionStatus::Limited;
    }
    qsizetype thumbnailBytes() const { return _thumbnailBytes; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// A reading has begun, ended or been stopped.
    void scanned();

private:
    struct Photo {
        QString path;
        std::int64_t modified = 0; ///< milliseconds since 1970
        bool operator==(const Photo&) const = default;
    };
    struct Thumbnail {
        QString path;
        QImage image; ///< null for a photo that can't be read
    };
    struct Jobs;

    static std::vector<Photo> photosIn(const QString& folder, const Jobs& jobs,
                                       std::uint64_t number);
    void show(std::vector<Photo> photos, PermissionStatus status);
    void load(const QString& path);
    void take(const QString& path, const QImage& image);
    void evict();
    const QImage* thumbnailOf(const QString& path) const;

    const ThumbnailCache _cache;
    const qsizetype _mostThumbnailBytes;
    const std::shared_ptr<Jobs> _jobs;
    std::vector<Photo> _photos;
    bool _isScanning = false;
    PermissionStatus _status = PermissionStatus::NotDetermined;
    int _firstVisible = 0;
    int _visibleCount = 0;

    std::list<Thumbnail> _thumbnails; ///< the one that was shown last comes first
    QHash<QString, std::list<Thumbnail>::iterator> _thumbnailsByPath;
    qsizetype _thumbnailBytes = 0;
};

} // namespace pelmira
