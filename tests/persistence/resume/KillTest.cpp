#include "persistence/resume/KilledSession.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "support/TemporaryFolder.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <ostream>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace pelmira {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int mostKills = 60;
constexpr std::chrono::seconds longest{20};

/// The saved work as the journal names it; photo 0 is none.
struct Work {
    unsigned photo = 0;
    quint64 mask = 0;
    bool operator==(const Work&) const = default;
};

void PrintTo(const Work& work, std::ostream* out)
{
    *out << "photo " << work.photo << " mask " << work.mask;
}

/// What a launch may offer: what was saved last, or what was just being saved.
std::vector<Work> allowedBy(const QByteArray& journal)
{
    std::vector<Work> allowed{Work()};
    for (const QByteArray& line : journal.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 3)
            continue;
        if (words[0] == "done")
            allowed.clear();
        allowed.push_back({words[1].toUInt(), words[2].toULongLong()});
    }
    return allowed;
}

class KillTest : public testing::Test {
protected:
    pid_t launch(unsigned seed, const std::string& photo)
    {
        const std::string texts[] = {KILLED_SESSION, folder.path().toStdString(),
                                     std::to_string(seed), photo};
        char* arguments[5] = {};
        std::transform(std::begin(texts), std::end(texts), arguments,
                       [](const std::string& text) { return const_cast<char*>(text.c_str()); });
        pid_t process = 0;
        const int error =
            ::posix_spawn(&process, KILLED_SESSION, nullptr, nullptr, arguments, environ);
        EXPECT_EQ(error, 0);
        return process;
    }

    /// Lets the session work for the given time, counted from when it first touches what is saved.
    void killAfter(pid_t process, std::chrono::microseconds time)
    {
        const qint64 before = QFile(journal).size();
        int status = 0;
        const auto deadline = Clock::now() + longest;
        while (QFile(journal).size() == before && Clock::now() < deadline &&
               ::waitpid(process, &status, WNOHANG) == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        std::this_thread::sleep_for(time);
        ::kill(process, SIGKILL);
        ::waitpid(process, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
            << "the session ended by itself: " << status;
    }

    /// What the next launch offers, told apart by the files' contents.
    Work offered(const std::vector<Work>& allowed)
    {
        UserDefaults defaults(folder.path("preferences.json"));
        ResumeWorkHelper helper(folder.path(), defaults);
        if (!helper.hasSavedWork()) {
            helper.clearSavedWork();
            return {};
        }
        const QImage cutOut = helper.savedWorkThumbnail();
        const QImage image = helper.savedWorkImage();
        const auto entry = helper.savedWorkUndoEntry();
        if (cutOut.isNull() || image.isNull() || !entry) {
            ADD_FAILURE() << "both files are there and one is broken";
            return {};
        }
        std::int32_t length = 0;
        const std::uint8_t* plane = entry->originalDataWithLengthPtr(&length);
        Work work{~0U, test::fingerprint(plane, static_cast<std::size_t>(length))};
        for (const Work& one : allowed)
            if (one.photo != 0 && looksLike(image, test::numberedPhoto(one.photo)))
                work.photo = one.photo;
        return work;
    }

    static bool looksLike(const QImage& jpeg, const QImage& photo)
    {
        if (jpeg.size() != photo.size())
            return false;
        qint64 difference = 0;
        for (int y = 0; y < photo.height(); y += 3)
            for (int x = 0; x < photo.width(); x += 3)
                difference += std::abs(qRed(jpeg.pixel(x, y)) - qRed(photo.pixel(x, y))) +
                              std::abs(qBlue(jpeg.pixel(x, y)) - qBlue(photo.pixel(x, y)));
        return difference < qint64{4} * photo.width() * photo.height() / 9;
    }

    const test::TemporaryFolder folder;
    const QString journal = test::journalIn(folder.path());
};

// One folder through all of it, as a user has it: each session goes on where a killed one left off.
TEST_F(KillTest, WhateverTheMomentTheNextLaunchOffersTheLastSavedStateOrTheOneBefore)
{
    const unsigned seed = std::random_device()();
    std::cout << "seed " << seed << std::endl;
    std::mt19937 random(seed);
    const auto end = Clock::now() + longest;
    int kills = 0;
    int resumed = 0;
    int beginnings = 0;
    Work work;
    while (kills < mostKills && Clock::now() < end && !HasFailure()) {
        const bool resumes = work.photo != 0 && random() % 3 != 0;
        const pid_t process =
            launch(static_cast<unsigned>(random()), std::to_string(resumes ? work.photo : 0));
        killAfter(process, std::chrono::microseconds(random() % 200'000));
        ++kills;
        resumed += resumes;
        const auto allowed = allowedBy(test::TemporaryFolder::read(journal));
        beginnings += allowed.size() > 1;
        work = offered(allowed);
        EXPECT_NE(std::find(allowed.begin(), allowed.end(), work), allowed.end())
            << "kill " << kills << " offers " << testing::PrintToString(work) << ", allowed are "
            << testing::PrintToString(allowed);
    }
    std::cout << kills << " kills, " << beginnings << " while saving, " << resumed << " resumed"
              << std::endl;
    EXPECT_GT(kills, 1);
}

/// What may be offered after a session that stayed in front: nothing older than what was settled.
std::vector<Work> notOlderThanSettled(const QByteArray& journal)
{
    std::vector<Work> allowed{Work()};
    for (const QByteArray& line : journal.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 3)
            continue;
        if (words[0] == "settled")
            allowed.clear();
        allowed.push_back({words[1].toUInt(), words[2].toULongLong()});
    }
    return allowed;
}

TEST_F(KillTest, ASessionInFrontLosesNothingThatWasSettledForTwoSeconds)
{
    std::random_device seeds;
    std::mt19937 random(seeds());
    for (int kill = 0; kill < 3; ++kill) {
        QFile::remove(journal);
        const pid_t process = launch(seeds(), "front");
        const auto deadline = Clock::now() + longest;
        while (!test::TemporaryFolder::read(journal).contains("settled") && Clock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        killAfter(process, std::chrono::milliseconds(random() % 1500));
        const auto allowed = notOlderThanSettled(test::TemporaryFolder::read(journal));
        const Work work = offered(allowed);
        EXPECT_NE(work, Work());
        EXPECT_NE(std::find(allowed.begin(), allowed.end(), work), allowed.end())
            << testing::PrintToString(work) << " of " << testing::PrintToString(allowed);
    }
}

// A second process that found no bus to ask.
TEST_F(KillTest, AnotherProcessLeavesTheWorkOfALivingOneAlone)
{
    const pid_t process = launch(1, "front");
    const QString image = folder.path("resume/workingImage.jpg");
    const auto deadline = Clock::now() + longest;
    while (!QFile::exists(image) && Clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    const QByteArray before = test::TemporaryFolder::read(image);
    ASSERT_FALSE(before.isEmpty());
    UserDefaults defaults(folder.path("other.json"));
    defaults.setBool(true, QStringLiteral("loadingThumb"));
    std::optional<ResumeWorkHelper> other(std::in_place, folder.path(), defaults);
    EXPECT_TRUE(other->isHeldElsewhere());
    EXPECT_FALSE(other->hasSavedWork());
    other->clearSavedWork();
    other->saveWorkingImage(test::numberedPhoto(7));
    other->finishSaving();
    EXPECT_EQ(test::TemporaryFolder::read(image), before);
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    other.emplace(folder.path(), defaults);
    EXPECT_FALSE(other->isHeldElsewhere()) << "the system lets go of what a killed process held";
}

} // namespace
} // namespace pelmira
