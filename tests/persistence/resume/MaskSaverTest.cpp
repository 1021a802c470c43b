#include "persistence/resume/MaskSaver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace pelmira {
namespace {

/// A hand, pixels and a clock that moves on demand.
struct MaskSaverTest : testing::Test {
    void change()
    {
        ++state;
        saver.maskChanged();
    }
    void setBusy(bool busy)
    {
        isReady = !busy;
        if (isReady)
            saver.maskChanged();
    }
    void passSeconds(double seconds)
    {
        for (const double end = time + seconds;;) {
            const auto next =
                std::min_element(jobs.begin(), jobs.end(),
                                 [](const auto& a, const auto& b) { return a.first < b.first; });
            if (next == jobs.end() || next->first > end) {
                time = end;
                return;
            }
            time = std::max(time, next->first);
            const Job job = std::move(next->second);
            jobs.erase(next);
            job();
        }
    }

    double time = 100.0;
    std::vector<std::pair<double, Job>> jobs;
    bool isReady = true;
    bool canBeRead = true;
    std::uint64_t state = 1;
    std::vector<std::uint64_t> saved;
    int told = 0;
    MaskSaver saver{
        {[this] { return isReady; }, [this] { return state; },
         [this] {
             if (canBeRead)
                 saved.push_back(state);
             saver.maskChanged(); // copying locks the pixels and lets go of them
             return canBeRead;
         }},
        {[this] { return time; },
         [this](double seconds, Job job) { jobs.emplace_back(time + seconds, std::move(job)); }}};
    using States = std::vector<std::uint64_t>;
};

TEST_F(MaskSaverTest, ASecondAfterTheLastChangeOnceTheHandIsAway)
{
    saver.maskChanged(); // the photo has just been opened
    passSeconds(0.5);
    change();
    passSeconds(0.9);
    EXPECT_TRUE(saved.empty());
    passSeconds(0.2);
    EXPECT_EQ(saved, States({2}));

    saver.setFingerDown(true);
    for (int i = 0; i < 30; ++i) {
        change();
        passSeconds(0.1);
    }
    passSeconds(5);
    EXPECT_EQ(saved, States({2}));
    saver.setFingerDown(false);
    passSeconds(0);
    EXPECT_EQ(saved, States({2, 32}));
    saver.maskChanged();
    saver.saveNow();
    passSeconds(60);
    EXPECT_EQ(saved.size(), 2U) << "nothing is saved twice";
    EXPECT_TRUE(jobs.empty()) << "nothing wakes up while idle";
}

TEST_F(MaskSaverTest, AHandThatNeverRestsIsSavedBetweenTwoTouches)
{
    for (int i = 0; i < 30; ++i) {
        saver.setFingerDown(true);
        change();
        passSeconds(0.4);
        saver.setFingerDown(false);
        passSeconds(0.1);
    }
    EXPECT_EQ(saved.size(), 1U);
}

TEST_F(MaskSaverTest, ASaveThatFindsThePixelsBusyIsMadeWhenTheJobEnds)
{
    change();
    setBusy(true);
    saver.saveNow();
    saver.saveNow();
    passSeconds(3);
    EXPECT_TRUE(saver.isDue());
    EXPECT_TRUE(saved.empty());
    ++state;
    setBusy(false);
    EXPECT_TRUE(saved.empty()) << "not within the call of who lets go";
    setBusy(true); // the next one was waiting
    passSeconds(0);
    EXPECT_TRUE(saver.isDue());
    setBusy(false);
    passSeconds(0);
    EXPECT_FALSE(saver.isDue());
    EXPECT_EQ(saved, States({3}));

    change(); // the second's rest ends while a fill runs
    setBusy(true);
    passSeconds(2);
    EXPECT_EQ(saved.size(), 1U);
    setBusy(false);
    passSeconds(0);
    EXPECT_EQ(saved.size(), 2U);
}

TEST_F(MaskSaverTest, AMaskThatCannotBeReadIsToldOnceAndTriedAgain)
{
    saver.failedBlock = [this] { ++told; };
    canBeRead = false;
    change();
    passSeconds(20);
    change();
    passSeconds(20);
    saver.saveNow();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(jobs.empty());
    canBeRead = true;
    saver.saveNow();
    EXPECT_EQ(saved, States({3}));
    canBeRead = false;
    change();
    passSeconds(2);
    EXPECT_EQ(told, 2);
}

} // namespace
} // namespace pelmira
