#include "intake/PhotoLibraryModel.h"

#include "support/Test.h"

#include <QAbstractItemModelTester>

namespace pelmira {
namespace {

constexpr int photoCount = 300;

struct PhotoLibraryModelTest : testing::Test {
    using Model = PhotoLibraryModel; /// Photo n is n seconds younger than photo 0 and lies in one
                                     /// of a few folders.
    void SetUp() override
    {
        QDir().mkpath(pictures + u"/trip/day 1"_s);
        QDir().mkpath(pictures + u"/.hidden"_s);
        for (int n = 0; n < photoCount; ++n) {
            const char* folders[] = {"", "/trip", "/trip/day 1"};
            save(pictures + QLatin1String(folders[n % 3]) + u"/p%1.png"_s.arg(n), n);
        }
        save(pictures + u"/.hidden/not-mine.png"_s, 0);
        folder.write("Pictures/notes.txt", "text");
        folder.write("Pictures/empty.jpg", "");
        QFile::link(folder.path(), pictures + u"/loop"_s);
        QDir().mkpath(pictures + u"/folder.jpg"_s);
    }

    static void save(const QString& path, int secondsYounger)
    {
        ASSERT_TRUE(plainImage({40, 30}, QColor(secondsYounger % 256, 0, 0)).save(path));
        TemporaryFolder::setTime(path,
                                 QDateTime::fromSecsSinceEpoch(1'600'000'000 + secondsYounger));
    }

    void scan(const QString& place)
    {
        model->scan(place);
        EXPECT_TRUE(model->isScanning());
        EXPECT_TRUE(drainUntil([this] { return !model->isScanning(); }));
    }
    void scan() { scan(pictures); }
    QVariant at(int row, int role) const { return model->data(model->index(row), role); }
    QImage thumbnail(int row) const { return at(row, Model::ThumbnailRole).value<QImage>(); }
    QString name(int row) const { return at(row, Model::NameRole).toString(); }
    void waitForThumbnails(int first, int last)
    {
        for (int row = first; row <= last; ++row)
            ASSERT_TRUE(drainUntil([&] { return !thumbnail(row).isNull(); }));
    }

    static constexpr qsizetype thumbnailSize = 40 * 30 * 4;
    const TemporaryFolder folder;
    const QString pictures = folder.path("Pictures");
    std::unique_ptr<PhotoLibraryModel> model = std::make_unique<PhotoLibraryModel>(
        ThumbnailCache(folder.path("thumbnails")), 30 * thumbnailSize);
    QAbstractItemModelTester tester{model.get(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PhotoLibraryModelTest, ListsThePhotosOfAllFoldersNewestFirst)
{
    scan();
    ASSERT_EQ(model->rowCount(), photoCount);
    EXPECT_TRUE(model->isAuthorised());
    EXPECT_EQ(name(0), u"p299.png"_s);
    EXPECT_EQ(name(photoCount - 1), u"p0.png"_s);
    EXPECT_EQ(at(1, Model::PathRole).toString(), pictures + u"/trip/p298.png"_s);
    EXPECT_FALSE(QFileInfo::exists(folder.path("thumbnails"))) << "nobody has looked yet";

    save(pictures + u"/new.png"_s, 1000);
    QFile::remove(pictures + u"/trip/p298.png"_s);
    scan();
    EXPECT_EQ(model->rowCount(), photoCount);
    EXPECT_EQ(name(0), u"new.png"_s);
    EXPECT_EQ(name(2), u"p297.png"_s);

    scan(folder.impossibleFolder());
    EXPECT_EQ(model->status(), PermissionStatus::Denied);
    EXPECT_EQ(model->rowCount(), 0);
}

TEST_F(PhotoLibraryModelTest,
       ThumbnailsComeForVisibleRowsMemoryIsBoundedAndAReplacedPhotoGetsANewOne)
{
    scan();
    QObject::connect(
        model.get(), &QAbstractItemModel::dataChanged,
        [](const QModelIndex& first, const QModelIndex& last) { EXPECT_EQ(first, last); });
    for (int first = 0; first < photoCount; first += 12) {
        model->setVisibleRows(first, 12);
        waitForThumbnails(first, std::min(first + 12, photoCount) - 1);
        EXPECT_LE(model->thumbnailBytes(), 30 * thumbnailSize);
    }
    EXPECT_EQ(qRed(thumbnail(photoCount - 1).pixel(3, 3)), 0);
    EXPECT_TRUE(thumbnail(5).isNull()) << "long gone";
    // A large window needs what it needs, and the rest goes with the next small one.
    model->setVisibleRows(0, 100);
    waitForThumbnails(0, 99);
    EXPECT_GE(model->thumbnailBytes(), 100 * thumbnailSize);
    model->setVisibleRows(150, 2);
    waitForThumbnails(150, 151);
    EXPECT_LE(model->thumbnailBytes(), 30 * thumbnailSize);
    EXPECT_EQ(qRed(thumbnail(150).pixel(3, 3)), (photoCount - 1 - 150) % 256);

    model->setVisibleRows(0, 3);
    waitForThumbnails(0, 2);
    const qint64 before = thumbnail(1).cacheKey();
    const QString first = pictures + u"/trip/day 1/p299.png"_s;
    ASSERT_TRUE(plainImage({40, 30}, Qt::green).save(first));
    folder.write("Pictures/broken.jpg", "text");
    scan();
    ASSERT_EQ(model->rowCount(), photoCount + 1);
    int broken = name(0) == u"broken.jpg"_s ? 0 : 1;
    ASSERT_TRUE(drainUntil([&] { return at(broken, Model::IsBrokenRole).toBool(); }));
    waitForThumbnails(1 - broken, 1 - broken);
    EXPECT_EQ(thumbnail(1 - broken).pixel(3, 3), qRgb(0, 255, 0));
    EXPECT_EQ(thumbnail(2).cacheKey(), before) << "the others keep theirs";
}

TEST_F(PhotoLibraryModelTest, WorkStopsWhenNobodyWantsIt)
{
    model->scan(pictures);
    model->cancel();
    EXPECT_FALSE(model->isScanning());
    model->scan(folder.path("elsewhere"));
    scan(); // the newest counts
    EXPECT_EQ(model->rowCount(), photoCount);

    model->setVisibleRows(0, photoCount);
    model->setVisibleRows(-5, 2);
    waitForThumbnails(0, 1);
    model->setVisibleRows(photoCount - 1, 1000);
    waitForThumbnails(photoCount - 1, photoCount - 1);
    model->setVisibleRows(0, photoCount);
    model->scan(pictures);
    model.reset(); // in the middle of everything
    bool isServed = false;
    globalQueue(QueuePriority::Background).async([&] { // after what was under way
        mainQueue().async([&] { isServed = true; });
    });
    ASSERT_TRUE(drainUntil([&] { return isServed; }));
}

} // namespace
} // namespace pelmira
