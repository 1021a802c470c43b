#include "settings/EventLog.h"
#include "settings/EventLogVC.h"
#include "settings/ZKLAnalyticsHelper.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QStringList>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

class EventLogTest : public ::testing::Test {
protected:
    void TearDown() override { ZKLAnalyticsHelper::setSink(nullptr); }
    void connectTo(EventLog& log)
    {
        ZKLAnalyticsHelper::setSink([&log](const QString& name, const auto& parameters) {
            log.logEventWithName(name, parameters);
        });
    }

    const test::TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
};

TEST_F(EventLogTest, EveryKindOfEventIsTheSelectionOfSomething)
{
    QStringList events;
    ZKLAnalyticsHelper::logEvent(u"nobody listens"_s);
    ZKLAnalyticsHelper::setSink([&](const QString& name, const QMap<QString, QString>& parameters) {
        EXPECT_EQ(parameters.keys(), QStringList({u"content_type"_s, u"item_id"_s}));
        events << name + u' ' + parameters[u"content_type"_s] + u' ' + parameters[u"item_id"_s];
    });
    ZKLAnalyticsHelper::logEvent(u"start"_s);
    ZKLAnalyticsHelper::logPanel(u"brush"_s);
    ZKLAnalyticsHelper::logSelectContentWithType(ZKLAnalyticsHelper::contentTypeToggleHEIF(), 0);
    ZKLAnalyticsHelper::logSelectContentWithType(ZKLAnalyticsHelper::contentTypePhotoPermission(),
                                                 u"yes"_s);
    EXPECT_EQ(
        events,
        QStringList({u"select_content Event start"_s, u"select_content PanelShow brush"_s,
                     u"select_content ToggleHEIF 0"_s, u"select_content PhotoPermission14 yes"_s}));
}

TEST_F(EventLogTest, NothingIsWrittenUnlessTheUserWantsIt)
{
    EventLog log(defaults, folder.path("events.log"));
    connectTo(log);
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
}

TEST_F(EventLogTest, AFullLogLosesItsOlderHalf)
{
    EventLog log(defaults, folder.path("events.log"));
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

TEST_F(EventLogTest, ALogThatCantBeWrittenIsNobodysTrouble)
{
    EventLog log(defaults, folder.impossibleFolder() + u"/events.log"_s);
    log.setOn(true);
    log.logEventWithName(u"lost"_s, {});
    EXPECT_EQ(log.text(), QString());
    EXPECT_TRUE(log.remove());
}

} // namespace
} // namespace pelmira
