#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <cstdint>

namespace pelmira {

/// Small pictures of photos, kept where the desktop's file managers keep theirs, so that each is
/// made once for all of them: $XDG_CACHE_HOME/thumbnails, by the thumbnail standard of
/// freedesktop.org (https://specifications.freedesktop.org/thumbnail-spec). Safe from any thread.
class ThumbnailCache {
public:
    enum class Size { Normal = 128, Large = 256 }; ///< the longest side in pixels

    ThumbnailCache();
    explicit ThumbnailCache(QString folder);

    /// The photo's thumbnail, upright and in the bitmap form: the kept one if the photo is still
    /// the one it was made of, else a new one, which is then kept. Null if the photo can't be read.
    QImage thumbnail(const QString& photoPath, Size size) const;

    /// The kept one, or null. `modified` is the photo's time in seconds since 1970.
    QImage lookUp(const QString& photoPath, std::int64_t modified, Size size) const;
    /// Keeps a thumbnail; a cache that can't be written is no error.
    void keep(const QImage& thumbnail, const QString& photoPath, std::int64_t modified,
              Size size) const;

    /// The name by which file managers know a file: escaped as theirs do, not as browsers do.
    static QByteArray uriFor(const QString& absolutePath);
    QString pathFor(const QString& photoPath, Size size) const;

private:
    const QString _folder;
};

} // namespace pelmira
