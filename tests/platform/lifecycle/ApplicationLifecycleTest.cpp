#include "platform/lifecycle/ApplicationLifecycle.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>

#include <csignal>

namespace pelmira {
namespace {

TEST(ApplicationLifecycle, TellsOnceOfEveryWayIntoTheBackground)
{
    QWindow window;
    int times = 0;
    int resigned = 0;
    const ApplicationLifecycle lifecycle(
        window,
        [&] {
            EXPECT_GT(resigned, times); // that comes first
            ++times;
        },
        [&resigned] { ++resigned; });
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
        EXPECT_TRUE(QTest::qWaitFor([&] { return times == before + 1; })) << number;
    }
}

} // namespace
} // namespace pelmira
