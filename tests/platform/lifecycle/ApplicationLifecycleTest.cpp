#include "platform/lifecycle/ApplicationLifecycle.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QWindow>

#include <csignal>

namespace pelmira {
namespace {

TEST(ApplicationLifecycle, TellsOnceOfEveryWayIntoTheBackground)
{
    QWindow window;
    int times = 0;
    int resigned = 0;
    ApplicationLifecycle::Handlers handlers;
    handlers.didEnterBackground = [&] {
        EXPECT_GT(resigned, times); // that comes first
        ++times;
    };
    handlers.willResignActive = [&resigned] { ++resigned; };
    const ApplicationLifecycle lifecycle(window, handlers);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(times, 0);
    window.setVisibility(QWindow::Minimized);
    EXPECT_EQ(times, 1);
    window.hide(); // it is there already
    EXPECT_EQ(times, 1);
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        const int before = times;
        window.hide();
        window.showNormal(); // in the foreground again
        std::raise(number);
        EXPECT_TRUE(waitFor([&] { return times == before + 1; })) << number;
    }
}

TEST(ApplicationLifecycle, TheProcessStaysUntilItsWorkIsDone)
{
    QWindow window;
    std::atomic<bool> mayFinish = false;
    bool isAtWork = true;
    bool wasToldLast = false;
    ApplicationLifecycle::Handlers handlers;
    handlers.hasUnfinishedWork = [&] {
        EXPECT_FALSE(window.isVisible()); // the user is not kept waiting
        mayFinish = true;
        return isAtWork;
    };
    handlers.willTerminate = [&] { wasToldLast = !isAtWork; };
    const ApplicationLifecycle lifecycle(window, handlers);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    // Two steps, as a picture is encoded and then written.
    globalQueue(QueuePriority::UserInitiated).async([&] {
        while (!mayFinish)
            std::this_thread::yield();
        mainQueue().async([&] {
            globalQueue(QueuePriority::UserInitiated).async([&] {
                mainQueue().async([&] { isAtWork = false; });
            });
        });
    });
    mainQueue().async([] { std::raise(SIGTERM); });
    QGuiApplication::exec();
    EXPECT_TRUE(wasToldLast);
}

} // namespace
} // namespace pelmira
