#include "persistence/resume/KilledSession.h"
#include "support/SavedWork.h"
#include "support/Test.h"

#include <csignal>
#include <iostream>
#include <spawn.h>
#include <sys/wait.h>
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
        Work work{~0U, test::fingerprint(test::planeOf(*entry))};
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

} // namespace
} // namespace pelmira
