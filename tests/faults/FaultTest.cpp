#include "platform/image/Image.h"
#include "support/ProcessHome.h"
#include "support/SavedWork.h"
#include "support/Test.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cerrno>
#include <iostream>

namespace pelmira {
namespace {

constexpr int pictures = 4;      // one earlier, and three that a session saves
constexpr int patience = 100000; // milliseconds

using test::Plane;
using test::SavedWork;

constexpr const char* files = "files"; // the kinds of calls, as the session names them
constexpr const char* blocks = "blocks";
constexpr const char* gl = "gl";

struct Fault {
    int nth = 0; ///< 0: none
    int error = 0;
    bool isLasting = false;
};

struct Outcome {
    bool isThrough = false;
    bool hasGivenUp = false; ///< it ended itself: nothing could be drawn into
    int calls = 0;
    QByteArray failed;
    QList<QByteArray> told;
    QList<QByteArray> log;

    bool hasTold(const char* start) const
    {
        return std::any_of(told.begin(), told.end(),
                           [&](const QByteArray& line) { return line.startsWith(start); });
    }
};

/// The photo is of that colour.
bool isOf(const SavedWork& work, QRgb colour)
{
    if (work.photo.isNull())
        return false;
    const QRgb pixel = work.photo.pixel(work.photo.rect().center());
    return std::abs(qRed(pixel) - qRed(colour)) + std::abs(qBlue(pixel) - qBlue(colour)) < 12;
}

const auto isWhole = [](const QString& picture) { return loadImage(picture).index() == 0; };
struct FaultTest : testing::Test {
    explicit FaultTest(const char* what = files)
        : kind(what), size(what == files ? QSize(200, 160) : QSize(800, 600)),
          earlierMask(static_cast<std::size_t>(size.width()) * size.height())
    {
        for (std::size_t i = 0; i < earlierMask.size(); ++i)
            earlierMask[i] = i % 3 ? 255 : 0;
    }

    /// A home in which somebody has worked before.
    void furnish(const TemporaryFolder& home) const
    {
        for (const char* folder : {"data", "Pictures/Pelmira"})
            QDir().mkpath(home.path(folder));
        home.write("preferences.json", R"({"unitBrushSize": 0.25, "saveAsHeif": true})");
        plainImage({30, 20}, Qt::magenta).save(home.path("Pictures/Pelmira/earlier.png"));
        plainImage(size, Qt::blue).save(home.path("photo.png"));
        UserDefaults defaults(home.path("other.json"));
        const SavedWork work{plainImage(size, Qt::red), earlierMask};
        test::saveWork(home.path("data"), defaults, work);
    }

    Outcome play(const TemporaryFolder& home, const Fault& fault)
    {
        QProcessEnvironment environment = test::environmentIn(home, "offscreen");
        environment.insert(u"MESA_SHADER_CACHE_DISABLE"_s, u"true"_s);
        QProcess session;
        session.setProcessEnvironment(environment);
        session.start(QStringLiteral(FAULT_SESSION),
                      {QLatin1String(kind), QString::number(size.width()),
                       QString::number(size.height()), QString::number(fault.nth),
                       QString::number(fault.error), fault.isLasting ? u"on"_s : u"once"_s});
        Outcome outcome;
        const bool hasEnded =
            session.waitForFinished(patience) && session.exitStatus() == QProcess::NormalExit;
        outcome.isThrough = hasEnded && session.exitCode() == 0;
        for (const QByteArray& line : session.readAllStandardOutput().split('\n')) {
            if (line.startsWith("told "))
                outcome.told << line.mid(5);
            else if (line.startsWith("log "))
                outcome.log << line.mid(4);
            else if (line.startsWith("calls "))
                outcome.calls = line.mid(6).toInt();
            else if (line.startsWith("failed "))
                outcome.failed = line.mid(7).replace(home.path().toUtf8(), "~");
        }
        outcome.hasGivenUp = hasEnded && session.exitCode() == 1 && !outcome.log.isEmpty() &&
                             outcome.log.last().startsWith("Incomplete FBO");
        if (!outcome.isThrough && !outcome.hasGivenUp)
            std::cout << session.readAllStandardError().right(1500).toStdString() << std::endl;
        return outcome;
    }

    static std::optional<SavedWork> offerIn(const TemporaryFolder& home)
    {
        UserDefaults defaults(home.path("other.json"));
        return test::savedWork(home.path("data"), defaults);
    }

    /// Gives the number of pictures.
    static int expectEarlierIsWhole(const TemporaryFolder& home, const QByteArray& earlier)
    {
        EXPECT_EQ(TemporaryFolder::read(home.path("Pictures/Pelmira/earlier.png")), earlier);
        int whole = 0;
        for (const QFileInfo& file :
             QDir(home.path("Pictures/Pelmira")).entryInfoList(QDir::Files)) {
            EXPECT_TRUE(isWhole(file.filePath())) << qPrintable(file.fileName());
            ++whole;
        }
        const QJsonDocument preferences =
            QJsonDocument::fromJson(TemporaryFolder::read(home.path("preferences.json")));
        EXPECT_TRUE(preferences.isObject());
        EXPECT_EQ(preferences[u"unitBrushSize"_s].toDouble(), 0.25);
        return whole;
    }

    void expectAllIsWell(const TemporaryFolder& home, const QByteArray& earlier, const Fault& fault,
                         const Outcome& outcome)
    {
        ASSERT_TRUE(outcome.isThrough);
        const int whole = expectEarlierIsWhole(home, earlier);
        if (fault.isLasting) {
            EXPECT_TRUE(whole == pictures || outcome.hasTold("mainscreen.notice.save"));
        } else {
            EXPECT_EQ(whole, pictures) << "what failed once was not tried again";
        }
        const bool wasAboutFolders = outcome.failed.startsWith("unlink");
        if (!fault.isLasting && !wasAboutFolders) {
            for (const char* folder : {"Pictures/Pelmira", "data/resume"})
                EXPECT_TRUE(QDir(home.path(folder))
                                .entryList({u".pelmira-*"_s}, QDir::Files | QDir::Hidden)
                                .isEmpty());
        }

        QDirIterator shared(home.path("tmp"), {u"image.png"_s}, QDir::Files,
                            QDirIterator::Subdirectories);
        if (shared.hasNext())
            EXPECT_TRUE(isWhole(shared.next()));
        else
            EXPECT_TRUE(outcome.hasTold("savescreen.error.share"));
        expectWork(offerIn(home), outcome);
    }

    /// The same for what isn't about files: what is missing was told, or the application has ended
    /// itself, or there is a shader that draws nothing.
    void expectNothingIsLost(const TemporaryFolder& home, const QByteArray& earlier,
                             const Outcome& outcome)
    {
        ASSERT_TRUE(outcome.isThrough || outcome.hasGivenUp);
        const int whole = expectEarlierIsWhole(home, earlier);
        const auto isAboutShaders = [](const QByteArray& line) {
            return line.startsWith("Failed to compile") || line.startsWith("Failed to link") ||
                   line.startsWith("Failed to create");
        };
        const bool isKnown = outcome.hasGivenUp || !outcome.told.isEmpty() ||
                             std::any_of(outcome.log.begin(), outcome.log.end(), isAboutShaders);
        EXPECT_TRUE(whole == pictures || isKnown);
        const std::optional<SavedWork> offer = offerIn(home);
        EXPECT_TRUE(isKnown || (offer && isNewest(*offer)));
        EXPECT_FALSE(offer && offer->mask.empty());
    }

    /// As the session leaves it.
    bool isNewest(const SavedWork& work) const
    {
        return isOf(work, qRgb(0, 0, 255)) && work.mask == Plane(work.mask.size(), 0);
    }

    // The new photo's last state, or a line; and never one photo's mask with another.
    void expectWork(const std::optional<SavedWork>& offer, const Outcome& outcome)
    {
        EXPECT_TRUE((offer && isNewest(*offer)) || outcome.hasTold("homescreen.error.work"));
        if (!offer)
            return;
        const Plane all(earlierMask.size(), 255);
        const Plane none(earlierMask.size(), 0);
        Plane inverted = earlierMask;
        for (std::uint8_t& alpha : inverted)
            alpha = static_cast<std::uint8_t>(255 - alpha);
        const std::vector<Plane> its = isOf(*offer, qRgb(255, 0, 0))
                                           ? std::vector{earlierMask, inverted}
                                           : std::vector{all, none};
        EXPECT_EQ(std::count(its.begin(), its.end(), offer->mask), 1)
            << "a photo with another's mask, or a broken one";
    }

    Outcome run(const Fault& fault)
    {
        const TemporaryFolder home;
        furnish(home);
        const QByteArray earlier = TemporaryFolder::read(home.path("Pictures/Pelmira/earlier.png"));
        const Outcome outcome = play(home, fault);
        SCOPED_TRACE("call " + std::to_string(fault.nth) + ", error " +
                     std::to_string(fault.error) + (fault.isLasting ? " from then on" : " once") +
                     ": " + outcome.failed.toStdString() + "; told " +
                     outcome.told.join(", ").toStdString());
        if (kind == files)
            expectAllIsWell(home, earlier, fault, outcome);
        else
            expectNothingIsLost(home, earlier, outcome);
        ++sessions;
        return outcome;
    }

    /// Each call once and from then on, or every so many if not all are asked for.
    void letEachFail(const std::vector<int>& errors, int stepOfFew)
    {
        const Outcome undisturbed = run({});
        ASSERT_TRUE(undisturbed.isThrough);
        ASSERT_GT(undisturbed.calls, 30);
        EXPECT_TRUE(undisturbed.told.isEmpty()) << undisturbed.told.join(", ").toStdString();

        // "all", the number of one call, or nothing.
        const bool wantsAll = qEnvironmentVariableIsSet("PELMIRA_FAULTS");
        const int only = qEnvironmentVariableIntValue("PELMIRA_FAULTS");
        std::size_t turn = 0;
        for (int nth = std::max(only, 1); nth <= (only ? only : undisturbed.calls);
             nth += wantsAll ? 1 : stepOfFew)
            for (const bool isLasting : {false, true}) {
                if (!wantsAll && isLasting == (turn % 2 == 0))
                    continue;
                for (std::size_t i = 0; i < (wantsAll ? errors.size() : 1); ++i)
                    run({nth, errors[turn++ % errors.size()], isLasting});
            }
        std::cout << undisturbed.calls << " calls, " << sessions << " sessions" << std::endl;
    }

    const char* const kind;
    const QSize size; ///< of photos
    Plane earlierMask;
    int sessions = 0;
};

struct BlockFaultTest : FaultTest {
    BlockFaultTest() : FaultTest(blocks) {}
};

struct GLFaultTest : FaultTest {
    GLFaultTest() : FaultTest(gl) {}
};

TEST_F(FaultTest, WhicheverFileCallFailsNothingEarlierIsLostAndTheUserIsTold)
{
    letEachFail({ENOSPC, EIO, EROFS, EACCES}, 9);
}

#ifndef SANITIZED
TEST_F(BlockFaultTest, WhicheverLargeBlockIsNotToBeHadNothingEarlierIsLostAndTheUserIsTold)
{
    letEachFail({ENOMEM}, 9);
}
#endif

TEST_F(GLFaultTest, WhicheverObjectTheGPURefusesNothingEarlierIsLost)
{
    letEachFail({0}, 29);
}

} // namespace
} // namespace pelmira
