#include "settings/EventLog.h"
#include "settings/EventLogVC.h"
#include "settings/ZKLAnalyticsHelper.h"
#include "support/Test.h"

#include <QFileInfo>

namespace pelmira {
namespace {

struct EventLogTest : testing::Test {
    void TearDown() override { ZKLAnalyticsHelper::setSink(nullptr); }
    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    EventLog log{defaults, folder.path("events.log")};
};

TEST_F(EventLogTest, NothingIsWrittenUnlessTheUserWantsIt)
{
    ZKLAnalyticsHelper::setSink([this](const QString& name, const auto& parameters) {
        log.logEventWithName(name, parameters);
    });
    ZKLAnalyticsHelper::logEvent(u"one"_s);
    EXPECT_FALSE(folder.names().contains(u"events.log"_s));
    log.setOn(true);
    ZKLAnalyticsHelper::logEvent(u"two\nlines"_s);
    EXPECT_TRUE(log.text().endsWith(u" select_content content_type=Event item_id=two lines\n"_s));
    const auto others = QFileDevice::ReadGroup | QFileDevice::ReadOther;
    EXPECT_FALSE(QFileInfo(folder.path("events.log")).permissions() & others);
    EventLog(defaults, folder.path("events.log")).setOn(false); // lasts, and keeps what is there
    ZKLAnalyticsHelper::logEvent(u"three"_s);
    EXPECT_EQ(log.text().count(u'\n'), 1);

    EventLogVC screen(log);
    EXPECT_EQ(screen.text(), log.text());
    screen.deleteButtonPressed();
    screen.deleteButtonPressed();
    EXPECT_EQ(screen.text(), QString());
    EXPECT_FALSE(screen.alert()->isOpen());
    EXPECT_FALSE(folder.names().contains(u"events.log"_s));

    EventLog lost(defaults, folder.impossibleFolder() + u"/events.log"_s);
    lost.setOn(true);
    lost.logEventWithName(u"lost"_s, {}); // is nobody's trouble
    EXPECT_TRUE(lost.remove());
}

TEST_F(EventLogTest, AFullLogLosesItsOlderHalf)
{
    log.setOn(true);
    const QString filler(1000, u'x');
    for (int i = 0; i < 200; ++i) {
        log.logEventWithName(QString::number(i) + filler, {});
        ASSERT_LE(QFileInfo(folder.path("events.log")).size(), EventLog::mostBytes + 2000);
    }

    const QStringList lines = log.text().trimmed().split(u'\n');
    EXPECT_GT(lines.size(), 20);
    EXPECT_TRUE(lines.last().contains(u" 199x"_s));
    for (const QString& line : lines)
        EXPECT_TRUE(line.endsWith(filler));
}

} // namespace
} // namespace pelmira
