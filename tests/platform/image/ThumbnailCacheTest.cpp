#include "platform/image/ThumbnailCache.h"

#include "support/Test.h"

#include <QFileInfo>

namespace pelmira {
namespace {

struct ThumbnailCacheTest : testing::Test {
    static constexpr auto large = ThumbnailCache::Size::Large;

    QString savePhoto(const char* name, QSize size, QColor colour) const
    {
        const QString path = folder.path(name);
        EXPECT_TRUE(plainImage(size, colour).save(path));
        return path;
    }
    static qint64 timeOf(const QString& path)
    {
        return QFileInfo(path).lastModified().toSecsSinceEpoch();
    }
    static int permissionsOf(const QString& path) { return QFile::permissions(path).toInt(); }
    static void setTime(const QString& path, qint64 seconds)
    {
        TemporaryFolder::setTime(path, QDateTime::fromSecsSinceEpoch(seconds));
    }

    const TemporaryFolder folder;
    const ThumbnailCache cache{folder.path("cache/thumbnails")};
};

// The example of the standard, and how GLib writes what browsers would write otherwise.
TEST_F(ThumbnailCacheTest, NamesAreThoseOfTheDesktop)
{
    EXPECT_EQ(cache.pathFor(u"/home/jens/photos/me.png"_s, ThumbnailCache::Size::Normal),
              folder.path("cache/thumbnails/normal/c6ee772d9e49320e97ec29a7eb5b1697.png"));
    EXPECT_EQ(ThumbnailCache::uriFor(u"/tmp/Grüße (1); a+b #2 [x].jpg"_s),
              "file:///tmp/Gr%C3%BC%C3%9Fe%20(1)%3B%20a+b%20%232%20%5Bx%5D.jpg");
}

TEST_F(ThumbnailCacheTest, AThumbnailIsMadeOnceAndKeptForAll)
{
    for (const char* name : {"photo.jpg", "photo.png"}) {
        const QString photo = savePhoto(name, {800, 400}, QColor(200, 60, 30));
        const QImage made = cache.thumbnail(photo, large);
        ASSERT_EQ(made.size(), QSize(256, 128));
        EXPECT_EQ(made.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_NEAR(qRed(made.pixel(100, 60)), 200, 3);

        const QString kept = cache.pathFor(photo, large);
        const QImage stored(kept);
        EXPECT_EQ(stored.text(u"Thumb::URI"_s), QString::fromLatin1(ThumbnailCache::uriFor(photo)));
        EXPECT_EQ(stored.text(u"Thumb::MTime"_s), QString::number(timeOf(photo)));
        EXPECT_EQ(permissionsOf(kept), 0x6600); // for the owner alone
        EXPECT_EQ(permissionsOf(folder.path("cache/thumbnails/large")), 0x7700);
        // From now on the photo itself isn't read any more.
        const qint64 time = timeOf(photo);
        folder.write(name, "no photo");
        setTime(photo, time);
        EXPECT_EQ(cache.thumbnail(photo, large), made);
        EXPECT_TRUE(cache.thumbnail(photo, ThumbnailCache::Size::Normal).isNull());
        setTime(photo, time + 5);
        EXPECT_TRUE(cache.thumbnail(photo, large).isNull()) << "out of date";
    }
}

TEST_F(ThumbnailCacheTest, OthersThumbnailsAreTakenIfTheyFit)
{
    const QString photo = folder.write("photo.raw", "of no kind that we read");
    QImage other = plainImage({40, 30}, Qt::blue);
    const auto write = [&](const QByteArray& uri, const QString& time) {
        other.setText(u"Thumb::URI"_s, QString::fromLatin1(uri));
        other.setText(u"Thumb::MTime"_s, time);
        EXPECT_TRUE(other.save(cache.pathFor(photo, large), "png"));
        return cache.thumbnail(photo, large);
    };
    cache.keep(other, photo, 0, large); // makes the folders
    const QByteArray uri = ThumbnailCache::uriFor(photo);
    const QString time = QString::number(timeOf(photo));
    EXPECT_EQ(write(uri, time).pixel(5, 5), qRgb(0, 0, 255));
    EXPECT_FALSE(write(uri, time + u".125"_s).isNull());
    EXPECT_TRUE(write(uri, u"12"_s).isNull());
    EXPECT_TRUE(write(uri, {}).isNull());
    EXPECT_TRUE(write("file:///other.jpg", time).isNull());
    other = QImage(2000, 10, QImage::Format_RGB32);
    EXPECT_TRUE(write(uri, time).isNull()) << "no thumbnail is that large";
    QFile::resize(cache.pathFor(photo, large), 60);
    EXPECT_TRUE(cache.thumbnail(photo, large).isNull());
}

TEST_F(ThumbnailCacheTest, WhatCannotBeReadOrKeptIsNoError)
{
    EXPECT_TRUE(cache.thumbnail(folder.path("absent.jpg"), large).isNull());
    EXPECT_TRUE(cache.thumbnail(folder.path(), large).isNull());
    EXPECT_TRUE(cache.thumbnail(folder.write("text.jpg", "text"), large).isNull());
    EXPECT_FALSE(QFileInfo::exists(folder.path("cache")));

    const QString photo = savePhoto("thin.png", {3000, 2}, Qt::red);
    const ThumbnailCache nowhere(folder.impossibleFolder());
    EXPECT_EQ(nowhere.thumbnail(photo, large).size(), QSize(256, 1));
    const QString small = savePhoto("small.jpg", {20, 10}, Qt::red);
    EXPECT_EQ(cache.thumbnail(small, large).size(), QSize(20, 10)) << "not blown up";
}

} // namespace
} // namespace pelmira
