#include "persistence/resume/ResumeWorkHelper.h"

#include "platform/base/Log.h"
#include "platform/encode/JpegEncoder.h"
#include "platform/image/Image.h"
#include "support/Masks.h"
#include "support/Test.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace pelmira {
namespace {

using test::entryOf;
using test::Plane;
using test::planeOf;

constexpr int width = 64;
constexpr int height = 48;

QImage photo(QRgb colour)
{
    return plainImage({width, height}, colour);
}

const QRgb red = qRgb(200, 30, 30);
const QRgb green = qRgb(30, 160, 60);

/// Every alpha value somewhere.
Plane gradient(int shift = 0)
{
    Plane plane(std::size_t(width) * height);
    for (std::size_t i = 0; i < plane.size(); ++i)
        plane[i] = static_cast<std::uint8_t>(i / 7 + static_cast<std::size_t>(shift));
    return plane;
}

struct ResumeWorkHelperTest : testing::Test {
    QString imagePath() const { return folder.path("resume/workingImage.jpg"); }
    QString maskPath() const { return folder.path("resume/mask.data"); }
    QStringList names() const
    {
        QStringList found = QDir(folder.path("resume"))
                                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        found.removeAll(u"lock"_s);
        return found;
    }

    void saveImage(QRgb colour)
    {
        helper.saveWorkingImage(photo(colour));
        helper.finishSaving();
    }
    void saveMask(const Plane& plane)
    {
        helper.saveWorkMaskWithUndoEntry(entryOf(plane), helper.session());
        while (helper.isSavingMask())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    /// The scheduled image has been written by the main queue, or dropped.
    bool isSaved() const { return !helper.isSavingWorkingImage(); }
    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    ResumeWorkHelper helper{folder.path(), defaults};
};

TEST_F(ResumeWorkHelperTest, GivesBackWhatWasSavedAtTheNextLaunch)
{
    saveImage(red);
    EXPECT_FALSE(helper.hasSavedWork()) << "an image alone is no work";
    saveMask(gradient());

    ResumeWorkHelper next(folder.path(), defaults);
    ASSERT_TRUE(next.hasSavedWork());
    const QImage image = next.savedWorkImage();
    ASSERT_EQ(image.size(), QSize(width, height));
    EXPECT_EQ(image.pixel(9, 9), red);
    EXPECT_EQ(planeOf(*next.savedWorkUndoEntry()), gradient());

    const QImage cutOut = next.savedWorkThumbnail();
    ASSERT_EQ(cutOut.size(), QSize(width, height));
    for (const int x : {0, 17, 40, 63}) {
        const int alpha = gradient()[std::size_t(x) + 20 * width];
        EXPECT_EQ(qAlpha(cutOut.pixel(x, 20)), alpha);
        EXPECT_NEAR(*(cutOut.constScanLine(20) + x * 4 + 2), qRed(red) * alpha / 255, 1);
    }
    EXPECT_EQ(defaults.boolForKey(u"loadingThumb"_s), false);
    EXPECT_TRUE(next.hasSavedWork()) << "looking changes nothing";
}

TEST_F(ResumeWorkHelperTest, TheWorkingImageKeepsFineColourAndWhatIsUnderTheMask)
{
    // Lines of one pixel: with chroma at half resolution they'd blend. Half of them transparent.
    const QImage lines = paintedImage(
        {width, height},
        [](int x, int y) { return (x % 2 ? red : green) & (y % 2 ? 0xFFFFFFFF : 0x80FFFFFF); },
        QImage::Format_ARGB32);
    helper.saveWorkingImage(lines.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    helper.finishSaving();
    const QImage image = helper.savedWorkImage();
    ASSERT_FALSE(image.isNull());
    for (const QPoint at : {QPoint(20, 10), QPoint(21, 10), QPoint(40, 31), QPoint(41, 31)}) {
        EXPECT_LE(farthest(image.pixel(at), at.x() % 2 ? red : green), 8);
    }
}

TEST_F(ResumeWorkHelperTest, WithoutTheParentFolderEverythingDoesNothing)
{
    for (const QString& parent : {folder.path("absent"), folder.impossibleFolder()}) {
        ResumeWorkHelper nowhere(parent, defaults);
        EXPECT_FALSE(nowhere.resumeDirectoryURL());
        nowhere.saveWorkingImage(photo(red));
        nowhere.finishSaving();
        nowhere.saveWorkMaskWithUndoEntry(entryOf(gradient()), nowhere.session());
        nowhere.clearSavedWork();
        EXPECT_FALSE(nowhere.hasSavedWork());
        EXPECT_TRUE(nowhere.savedWorkThumbnail().isNull());
        EXPECT_FALSE(QFileInfo::exists(parent));
    }
    QDir(folder.path("resume")).removeRecursively();
    folder.write("resume", "not a folder");
    EXPECT_FALSE(helper.resumeDirectoryURL());
}

TEST_F(ResumeWorkHelperTest, ALockThatCannotBeMadeIsNoOtherProcess)
{
    const TemporaryFolder odd;
    QDir().mkpath(odd.path("resume/lock"));
    ResumeWorkHelper lockless(odd.path(), defaults);
    EXPECT_FALSE(lockless.isHeldElsewhere());
    int told = 0;
    lockless.setFailedBlock([&told](bool isNews) { told += isNews; });
    lockless.saveWorkingImage(photo(red));
    lockless.finishSaving();
    EXPECT_EQ(told, 1);
}

TEST_F(ResumeWorkHelperTest, AnUnfinishedThumbnailMeansTheWorkIsDropped)
{
    saveImage(red);
    saveMask(gradient());
    defaults.setBool(true, u"loadingThumb"_s);
    std::vector<std::string> lines;
    setLogSink([&](const std::string& line) { lines.push_back(line); });
    const ResumeWorkHelper next(folder.path(), defaults);
    EXPECT_THAT(lines, testing::ElementsAre("possible corruption: clearSavedWork"));
    EXPECT_TRUE(names().isEmpty());

    helper.saveWorkMaskWithUndoEntry(ZKLUndoEntry::initWithBuffer(nullptr, 5), helper.session());
    helper.finishSaving();
    setLogSink({});
    EXPECT_EQ(lines.back(), "saveWorkMask failed");
}

struct DamagedWork : ResumeWorkHelperTest {
    void SetUp() override
    {
        saveImage(red);
        saveMask(gradient());
        image = TemporaryFolder::read(imagePath());
        mask = TemporaryFolder::read(maskPath());
        ASSERT_FALSE(image.isEmpty() || mask.isEmpty());
    }

    /// Both files stand, and yet there is nothing to offer; clearing then makes a clean slate.
    void expectNothingToOffer(const std::string& what)
    {
        EXPECT_TRUE(helper.hasSavedWork()) << what;
        EXPECT_TRUE(helper.savedWorkThumbnail().isNull()) << what;
        EXPECT_EQ(defaults.boolForKey(u"loadingThumb"_s), false) << what;
        helper.clearSavedWork();
        EXPECT_TRUE(names().isEmpty()) << what;
        folder.write("resume/workingImage.jpg", image);
        folder.write("resume/mask.data", mask);
        EXPECT_FALSE(helper.savedWorkThumbnail().isNull()) << what;
    }

    QByteArray image;
    QByteArray mask;
};

TEST_F(DamagedWork, OffersNothingWhateverStandsInItsPlace)
{
    for (const auto& [name, whole, last] :
         {std::tuple("resume/workingImage.jpg", image, 1), {"resume/mask.data", mask, 20}}) {
        for (const QByteArray& content :
             {QByteArray(), whole.first(1), whole.first(whole.size() / 2), whole.chopped(last),
              QByteArray("<plist><array><integer>1</integer></array></plist>"),
              QByteArray(5000, '\xff')}) {
            folder.write(name, content);
            expectNothingToOffer(name + std::to_string(content.size()));
        }
        const QString path = folder.path(name);
        QFile::remove(path);
        QDir().mkpath(path + u"/with/content"_s);
        expectNothingToOffer("a folder");
        QFile::remove(path);
        ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
        expectNothingToOffer("a pipe");
    }
    folder.write("resume/workingImage.jpg",
                 jpegRepresentation(QImage(width, height + 1, QImage::Format_RGB32), 1.0));
    expectNothingToOffer("another size");
    // Saving goes through whatever stands there. QFile::remove(maskPath());
    QDir().mkpath(maskPath() + u"/with/content"_s);
    saveMask(gradient(3));
    EXPECT_EQ(planeOf(*helper.savedWorkUndoEntry()), gradient(3));
}

// The order of the background's clearing and of the first mask is a matter of luck, so each is
// tried often.
TEST_F(ResumeWorkHelperTest, AMaskSavedAtOnceIsNeitherLostNorPairedWithTheOldPhoto)
{
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        const QRgb colour = i % 2 ? red : green;
        helper.saveWorkingImage(photo(colour));
        for (auto turns = random() % 500; turns > 0; --turns)
            std::this_thread::yield();
        saveMask(gradient(i));
        if (helper.hasSavedWork()) {
            EXPECT_EQ(helper.savedWorkImage().pixel(5, 5), colour);
        }
        ASSERT_TRUE(drainUntil([this] { return isSaved(); }));
        ASSERT_TRUE(helper.hasSavedWork());
        ASSERT_EQ(helper.savedWorkImage().pixel(5, 5), colour);
        ASSERT_EQ(planeOf(*helper.savedWorkUndoEntry()), gradient(i));
    }
}

TEST_F(ResumeWorkHelperTest, TheNewestOfSeveralPhotosWinsAndAClearedOneStaysAway)
{
    for (int i = 0; i < 20; ++i) {
        for (int number = 0; number < 5; ++number)
            helper.saveWorkingImage(photo(qRgb(number * 40, i, 0)));
        ASSERT_TRUE(drainUntil([this] { return isSaved(); }));
        ASSERT_NEAR(qRed(helper.savedWorkImage().pixel(5, 5)), 160, 2);
        helper.saveWorkingImage(photo(red));
        helper.clearSavedWork();
        helper.finishSaving();
        ASSERT_TRUE(names().isEmpty());
    }
}

// A fill of the photo that was left may end, and ask for a save, when the next one is open.
TEST_F(ResumeWorkHelperTest, AMaskOfAPhotoThatWasLeftIsDropped)
{
    saveImage(red);
    const ResumeWorkHelper::Session old = helper.session();
    for (int i = 0; i < 50; ++i) {
        helper.saveWorkMaskWithUndoEntry(entryOf(gradient()), helper.session());
        if (i % 2)
            helper.clearSavedWork();
        helper.saveWorkingImage(photo(green));
        helper.saveWorkMaskWithUndoEntry(entryOf(gradient()), old);
        helper.finishSaving();
        ASSERT_EQ(names(), QStringList(u"workingImage.jpg"_s));
    }
}

TEST_F(ResumeWorkHelperTest, SweepsUpAfterAKilledProcess)
{
    saveImage(red);
    saveMask(gradient());
    folder.writeOld("resume/.pelmira-old.tmp", 3600);
    folder.writeOld("resume/mask.data.AbCdEf", 3600);
    folder.writeOld("resume/mask.data.GhIjKl", 1);
    const ResumeWorkHelper next(folder.path(), defaults);
    EXPECT_EQ(names(), QStringList({u"mask.data"_s, u"mask.data.GhIjKl"_s, u"workingImage.jpg"_s}));
}

} // namespace
} // namespace pelmira
