#include "SamplePhoto.h"
#include "kills/Journal.h"
#include "platform/image/Image.h"
#include "support/ProcessHome.h"
#include "support/SavedWork.h"
#include "support/Test.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QProcess>

#include <iostream>

namespace pelmira {
namespace {

using test::Work;

constexpr int fewKills = 5; // where nobody asks for more
constexpr int samples = 6;
constexpr int patience = 60000;      // milliseconds until a session does something
constexpr int longestSession = 9000; // milliseconds after that

/// One home through all of it, as a user has it: each session goes on where a killed one left off.
struct ApplicationKillTest : testing::Test {
    ApplicationKillTest()
    {
        for (const char* folder : {"samples", "Pictures", ".local/share/pelmira"})
            QDir().mkpath(home.path(folder));
        for (int number = 0; number < samples; ++number)
            samplePhoto(number).scaled(800, 600).save(home.path("samples/pear %1.jpg").arg(number));
    }

    /// Lets a session work for a random time, which begins with its start or with its first deed.
    void killOne()
    {
        const bool early = random() % 5 == 0;
        const auto seed = static_cast<unsigned>(random());
        QProcess session;
        session.setProcessEnvironment(environment);
        session.setProcessChannelMode(QProcess::MergedChannels);
        session.start(QStringLiteral(WANDERER),
                      {home.path(), QString::number(seed), offered ? u"offer"_s : u"none"_s});
        ASSERT_TRUE(session.waitForStarted());
        const qint64 before = journal.size();
        for (int waited = 0; !early && journal.size() == before && waited < patience; waited += 20)
            if (session.waitForFinished(20))
                break;
        session.waitForFinished(static_cast<int>(random() % (early ? 2500 : longestSession)));
        if (session.state() == QProcess::Running) {
            session.kill();
            ASSERT_TRUE(session.waitForFinished());
            return;
        }
        FAIL() << "the session ended by itself: " << session.exitCode() << ", seed " << seed << "\n"
               << session.readAll().right(2000).toStdString();
    }

    /// Work whose sight ended a launch is dropped at the next.
    bool wasLookedAt() const
    {
        return UserDefaults(home.path(".config/pelmira/preferences.json"))
            .boolForKey(u"loadingThumb"_s)
            .value_or(false);
    }

    /// As the next launch does; what is broken is a failure.
    std::optional<Work> whatIsOffered() const
    {
        UserDefaults defaults(home.path(".config/pelmira/preferences.json"));
        const auto work = test::savedWork(home.path(".local/share/pelmira"), defaults);
        if (!work)
            return std::nullopt;
        EXPECT_FALSE(work->mask.empty()) << "both files are there, and they are no work";
        EXPECT_EQ(work->mask.size(), std::size_t(work->photo.width()) * work->photo.height());
        return Work::of(work->photo, work->mask.data(), work->mask.size());
    }

    /// Whatever has its name is whole. What was killed in the middle may have left a hidden file.
    void expectWholeFiles()
    {
        for (const char* folder : {"Pictures/Pelmira", "tmp"}) {
            QDirIterator files(home.path(folder), QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString path = files.next();
                EXPECT_EQ(loadImage(path).index(), 0U) << qPrintable(path);
                ++pictures;
                QFile::remove(path);
            }
        }
        const QString preferences = home.path(".config/pelmira/preferences.json");
        if (QFile::exists(preferences)) {
            EXPECT_TRUE(QJsonDocument::fromJson(TemporaryFolder::read(preferences)).isObject());
        }
    }

    const TemporaryFolder home;
    test::Journal journal{home.path("journal")};
    const QProcessEnvironment environment = test::environmentIn(home, "xcb");
    std::mt19937 random{std::random_device()()};
    std::optional<Work> offered;
    int pictures = 0;
};

TEST_F(ApplicationKillTest, WhateverTheMomentTheNextLaunchHasTheLastSettledStateAndNoFileIsHalf)
{
    if (environment.value(u"DISPLAY"_s).isEmpty())
        GTEST_SKIP() << "no display";
    const int asked = qEnvironmentVariableIntValue("PELMIRA_KILLS");
    const int kills = asked > 0 ? asked : fewKills;
    int done = 0;
    int offers = 0;
    int looks = 0;
    while (done < kills && !HasFailure()) {
        killOne();
        ++done;
        test::Allowed allowed = journal.allowed();
        if (wasLookedAt()) {
            allowed.none = true;
            ++looks;
        }
        offered = whatIsOffered();
        offers += offered.has_value();
        EXPECT_TRUE(allowed.allows(offered))
            << "kill " << done << " offers "
            << (offered ? "mask " + std::to_string(offered->mask) + " of photo " +
                              offered->look.toHex().toStdString() + " after"
                        : "nothing after")
            << "\n"
            << TemporaryFolder::read(home.path("journal")).toStdString();
        expectWholeFiles();
        journal.restart(offered);
        if (done % 50 == 0)
            std::cout << done << " kills" << std::endl;
    }
    std::cout << done << " kills, " << offers << " with work to offer, " << looks
              << " while it was looked at, " << pictures << " pictures whole" << std::endl;
}

} // namespace
} // namespace pelmira
