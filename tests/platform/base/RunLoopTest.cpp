#include "platform/base/OperationQueue.h"
#include "support/Test.h"

#include <QBasicTimer>
#include <QCoreApplication>

#include <chrono>
#include <cstdlib>
#include <future>
#include <thread>

namespace pelmira {
namespace {

TEST(RunLoop, SerialQueueRunsOneJobAtATimeInOrder)
{
    SerialQueue queue("test", globalQueue(QueuePriority::Default));
    std::vector<int> order; // unguarded on purpose: two jobs at once would be a race
    for (int i = 0; i < 200; ++i)
        queue.async([&order, i] { order.push_back(i); });
    std::thread::id ranOn;
    queue.async([&] { mainQueue().async([&] { ranOn = std::this_thread::get_id(); }); });
    ASSERT_TRUE(drainUntil([&] { return ranOn != std::thread::id(); }));
    EXPECT_EQ(ranOn, std::this_thread::get_id());
    ASSERT_EQ(order.size(), 200U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(OperationQueue, WaitingEndsWhenTheLastOperationIsDropped)
{
    struct NeverServed : Queue {
        void async(Job) override {}
        void asyncAfter(double, Job) override {}
    } target;
    for (int i = 0; i < 50; ++i) {
        OperationQueue queue(target);
        queue.addOperation([] {});
        std::promise<void> isAboutToWait;
        const auto waiter = std::async(std::launch::async, [&] {
            isAboutToWait.set_value();
            queue.waitUntilAllOperationsAreFinished();
        });
        isAboutToWait.get_future().wait();
        queue.cancelAllOperations();
        ASSERT_EQ(waiter.wait_for(std::chrono::seconds(60)), std::future_status::ready);
    }
}

TEST(RunLoop, TimersGoOnInOrderWhileEveryWorkerIsBusy)
{
    std::promise<void> release;
    const std::shared_future<void> released = release.get_future().share();
    for (const QueuePriority priority :
         {QueuePriority::Background, QueuePriority::Default, QueuePriority::UserInitiated})
        for (int i = 0; i < 4; ++i)
            globalQueue(priority).async([released] { released.wait(); });
    std::vector<int> order;
    std::vector<int> expected;
    for (int i = 0; i < 100; ++i) {
        mainQueue().asyncAfter(0.001, [&order, i] { order.push_back(i); });
        expected.push_back(i);
    }
    EXPECT_TRUE(drainUntil([&] { return order.size() == expected.size(); }));
    EXPECT_EQ(order, expected);
    release.set_value();
}

TEST(RunLoop, TheLoopHasItsTurnBetweenLongJobs)
{
    int argc = 1;
    std::string name = "test";
    char* argv[] = {name.data(), nullptr};
    const QCoreApplication application(argc, argv);
    std::vector<std::string> order;
    QBasicTimer press;
    struct Presses : QObject {
        std::function<void()> pressed;
        void timerEvent(QTimerEvent*) override { pressed(); }
    } presses;
    presses.pressed = [&] {
        press.stop();
        order.emplace_back("press");
    };
    const auto takeLong = [] { passTime(0.1); };
    mainQueue().async([&] {
        order.emplace_back("long");
        press.start(0, &presses);
        takeLong();
        mainQueue().async([&] { order.emplace_back("later"); });
    });
    mainQueue().async([&] {
        order.emplace_back("long too");
        takeLong();
    });
    mainQueue().async([&] { order.emplace_back("short"); });
    while (order.size() < 5)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(order, (std::vector<std::string>{"long", "press", "long too", "short", "later"}));
}

// In a process of its own: the pools are gone for good.
TEST(RunLoopDeathTest, TheApplicationObjectOutlivesARunningJob)
{
    const auto runAndQuit = [] {
        bool hasEnded = false;
        int argc = 0;
        {
            const QCoreApplication application(argc, nullptr);
            std::promise<void> hasBegun;
            globalQueue(QueuePriority::Default).async([&] {
                hasBegun.set_value();
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
                hasEnded = QCoreApplication::instance() == &application;
            });
            hasBegun.get_future().wait();
        }
        std::_Exit(hasEnded ? EXIT_SUCCESS : EXIT_FAILURE);
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(runAndQuit(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

TEST(RunLoop, InvalidatedAndDestroyedTimersStaySilent)
{
    bool isDone = false;
    Timer invalidated = Timer::scheduled(0.01, [] { ADD_FAILURE(); });
    invalidated.invalidate();
    (void)Timer::scheduled(0.01, [] { ADD_FAILURE(); });
    const Timer kept = Timer::scheduled(0.03, [&] { isDone = true; });
    EXPECT_TRUE(kept.isValid());
    ASSERT_TRUE(drainUntil([&] { return isDone; }));
    EXPECT_FALSE(kept.isValid());
}

} // namespace
} // namespace pelmira
