#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/image/Image.h"
#include "support/TemporaryFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <iostream>
#include <optional>
#include <variant>
#include <vector>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

constexpr int pictures = 4;      // one earlier, and three that a session saves
constexpr int patience = 100000; // milliseconds

using Plane = std::vector<std::uint8_t>;

enum class Kind { Files, Blocks, GL };

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

/// What a launch would offer.
struct Offer {
    QRgb colour = 0; ///< of the photo
    Plane mask;
};

bool isNear(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qBlue(a) - qBlue(b)) < 12;
}

class FaultTest : public testing::Test {
protected:
    explicit FaultTest(Kind what = Kind::Files)
        : kind(what), size(what == Kind::Files ? QSize(200, 160) : QSize(800, 600)),
          earlierMask(static_cast<std::size_t>(size.width()) * size.height())
    {
        environment.insert(u"MESA_SHADER_CACHE_DISABLE"_s, u"true"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        for (const char* variable : {"DBUS_SESSION_BUS_ADDRESS", "XDG_DATA_HOME", "XDG_CONFIG_HOME",
                                     "XDG_CACHE_HOME", "XDG_PICTURES_DIR"})
            environment.remove(QLatin1String(variable));
        for (std::size_t i = 0; i < earlierMask.size(); ++i)
            earlierMask[i] = i % 3 ? 255 : 0;
    }

    /// A home in which somebody has worked before.
    void furnish(const test::TemporaryFolder& home) const
    {
        for (const char* folder : {"data", "tmp", "Pictures/Pelmira"})
            QDir().mkpath(home.path(folder));
        home.write("preferences.json", R"({"unitBrushSize": 0.25, "saveAsHeif": true})");
        QImage picture(30, 20, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        picture.save(home.path("Pictures/Pelmira/earlier.png"));
        QImage photo(size, QImage::Format_ARGB32_Premultiplied);
        photo.fill(Qt::blue);
        photo.save(home.path("photo.png"));
        photo.fill(Qt::red);
        UserDefaults defaults(home.path("other.json"));
        ResumeWorkHelper work(home.path("data"), defaults);
        work.saveWorkingImage(photo);
        MallocBlock block(static_cast<std::uint8_t*>(std::malloc(earlierMask.size())));
        std::copy(earlierMask.begin(), earlierMask.end(), block.get());
        work.saveWorkMaskWithUndoEntry(
            ZKLUndoEntry::initWithBuffer(std::move(block),
                                         static_cast<std::int32_t>(earlierMask.size())),
            work.session());
        work.finishSaving();
    }

    Outcome play(const test::TemporaryFolder& home, const Fault& fault)
    {
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"TMPDIR"_s, home.path("tmp"));
        QProcess session;
        session.setProcessEnvironment(environment);
        constexpr const char* kinds[] = {"files", "blocks", "gl"};
        session.start(QStringLiteral(FAULT_SESSION),
                      {QLatin1String(kinds[static_cast<int>(kind)]), QString::number(size.width()),
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

    static std::optional<Offer> offerIn(const test::TemporaryFolder& home)
    {
        UserDefaults defaults(home.path("other.json"));
        ResumeWorkHelper work(home.path("data"), defaults);
        if (!work.hasSavedWork())
            return std::nullopt;
        const QImage photo = work.savedWorkImage();
        const auto entry = work.savedWorkUndoEntry();
        std::int32_t length = 0;
        const std::uint8_t* plane = entry ? entry->originalDataWithLengthPtr(&length) : nullptr;
        if (photo.isNull() || !plane)
            return Offer();
        return Offer{photo.pixel(photo.width() / 2, photo.height() / 2), {plane, plane + length}};
    }

    /// Gives the number of pictures.
    static int expectEarlierIsWhole(const test::TemporaryFolder& home, const QByteArray& earlier)
    {
        EXPECT_EQ(test::TemporaryFolder::read(home.path("Pictures/Pelmira/earlier.png")), earlier);
        int whole = 0;
        for (const QFileInfo& file :
             QDir(home.path("Pictures/Pelmira")).entryInfoList(QDir::Files)) {
            EXPECT_TRUE(std::holds_alternative<QImage>(loadImage(file.filePath())))
                << qPrintable(file.fileName());
            ++whole;
        }
        const QJsonDocument preferences =
            QJsonDocument::fromJson(test::TemporaryFolder::read(home.path("preferences.json")));
        EXPECT_TRUE(preferences.isObject());
        EXPECT_EQ(preferences[u"unitBrushSize"_s].toDouble(), 0.25);
        return whole;
    }

    void expectAllIsWell(const test::TemporaryFolder& home, const QByteArray& earlier,
                         const Fault& fault, const Outcome& outcome)
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
            EXPECT_TRUE(std::holds_alternative<QImage>(loadImage(shared.next())));
        else
            EXPECT_TRUE(outcome.hasTold("savescreen.error.share"));
        expectWork(offerIn(home), outcome);
    }

    /// The same for what isn't about files: what is missing was told, or the application has ended
    /// itself, or there is a shader that draws nothing.
    void expectNothingIsLost(const test::TemporaryFolder& home, const QByteArray& earlier,
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
        const std::optional<Offer> offer = offerIn(home);
        EXPECT_TRUE(offer || isKnown);
        if (!offer)
            return;
        EXPECT_FALSE(offer->mask.empty());
        const bool isNewest =
            isNear(offer->colour, qRgb(0, 0, 255)) && offer->mask == Plane(offer->mask.size(), 0);
        EXPECT_TRUE(isNewest || isKnown);
    }

    // The new photo's last state, or a line; and never one photo's mask with another.
    void expectWork(const std::optional<Offer>& offer, const Outcome& outcome)
    {
        const Plane all(earlierMask.size(), 255);
        const Plane none(earlierMask.size(), 0);
        const bool isNewest =
            offer && isNear(offer->colour, qRgb(0, 0, 255)) && offer->mask == none;
        EXPECT_TRUE(isNewest || outcome.hasTold("homescreen.error.work"));
        if (!offer)
            return;
        Plane inverted = earlierMask;
        for (std::uint8_t& alpha : inverted)
            alpha = static_cast<std::uint8_t>(255 - alpha);
        const bool isEarlier = isNear(offer->colour, qRgb(255, 0, 0)) &&
                               (offer->mask == earlierMask || offer->mask == inverted);
        const bool isLater =
            !isNear(offer->colour, qRgb(255, 0, 0)) && (offer->mask == all || offer->mask == none);
        EXPECT_TRUE(isEarlier || isLater) << "a photo with another's mask, or a broken one";
    }

    Outcome run(const Fault& fault)
    {
        const test::TemporaryFolder home;
        furnish(home);
        const QByteArray earlier =
            test::TemporaryFolder::read(home.path("Pictures/Pelmira/earlier.png"));
        const Outcome outcome = play(home, fault);
        SCOPED_TRACE("call " + std::to_string(fault.nth) + ", error " +
                     std::to_string(fault.error) + (fault.isLasting ? " from then on" : " once") +
                     ": " + outcome.failed.toStdString() + "; told " +
                     outcome.told.join(", ").toStdString());
        if (kind == Kind::Files)
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

        const bool isWhole = environment.value(u"PELMIRA_FAULTS"_s) == u"all";
        std::size_t turn = 0;
        for (int nth = 1; nth <= undisturbed.calls; nth += isWhole ? 1 : stepOfFew)
            for (const bool isLasting : {false, true}) {
                if (!isWhole && isLasting == (turn % 2 == 0))
                    continue;
                for (std::size_t i = 0; i < (isWhole ? errors.size() : 1); ++i)
                    run({nth, errors[turn++ % errors.size()], isLasting});
            }
        std::cout << undisturbed.calls << " calls, " << sessions << " sessions" << std::endl;
    }

    const Kind kind;
    const QSize size; ///< of photos
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    Plane earlierMask;
    int sessions = 0;
};

class BlockFaultTest : public FaultTest {
protected:
    BlockFaultTest() : FaultTest(Kind::Blocks) {}
};

class GLFaultTest : public FaultTest {
protected:
    GLFaultTest() : FaultTest(Kind::GL) {}
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
