#include "settings/SettingsVC.h"

#include "platform/text/LocalizedStrings.h"
#include "settings/AppInfo.h"
#include "support/Test.h"

#include <QGuiApplication>

namespace pelmira {
namespace {

struct SettingsTest : testing::Test {
    void SetUp() override
    {
        QGuiApplication::setApplicationDisplayName(u"Pelmira"_s);
        AppInfo::fill();
        services.openPage = [this](const QUrl& page, std::function<void(bool)> completion) {
            opened << page.toString();
            pageShown = std::move(completion);
        };
        services.mailProgram.canSendMail = [this] { return canSendMail; };
        services.mailProgram.compose = [this](const Mail& mail, std::function<void(bool)> done) {
            mails.push_back(mail);
            pageShown = std::move(done);
        };
        services.copyText = [this](const QString& text) { copied << text; };
        services.isInstagramInstalled = [this] { return isInstagramInstalled; };
        services.showMoreApps = [this] { return hasMoreApps; };
        services.store = StorePages(u"https://store.example.org"_s);
        services.supportAddress = u"support@example.org"_s;
        open();
    }
    void TearDown() override { QGuiApplication::setApplicationDisplayName({}); }

    void open(const std::optional<QString>& appleId = u"12"_s,
              const std::optional<QString>& terms = u"https://example.org/terms"_s)
    {
        screen = SettingsVC::make(appleId, terms, u"https://example.org/privacy"_s, log, services);
    }
    void tap(const char* cellId)
    {
        const auto& groups = screen->groups();
        for (std::size_t section = 0; section < groups.size(); ++section)
            for (std::size_t row = 0; row < groups[section].entries.size(); ++row)
                if (groups[section].entries[row]->cellId() == QLatin1String(cellId)) {
                    screen->didSelectRow(int(row), int(section), {1, 2, 3, 4});
                    return;
                }
        FAIL() << cellId;
    }
    /// What the screen says to a tap that leads nowhere, by key.
    void expectMessage(const char* key)
    {
        EXPECT_TRUE(screen->alert()->isOpen());
        EXPECT_EQ(screen->alert()->message(), pelmira::localized(QLatin1String(key)));
        screen->alert()->dismiss();
    }

    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    EventLog log{defaults, folder.path("events.log")};
    SettingsVC::Services services;
    std::shared_ptr<SettingsVC> screen;
    bool canSendMail = true;
    bool isInstagramInstalled = false;
    bool hasMoreApps = true;
    QStringList opened;
    QStringList copied;
    std::vector<Mail> mails;
    std::function<void(bool)> pageShown;
};

TEST_F(SettingsTest, EachRowHasItsIconAndLeadsToItsPage)
{
    for (const auto& group : screen->groups())
        for (const auto& entry : group.entries)
            EXPECT_TRUE(SettingsVC::iconForCellId(entry->cellId())) << qPrintable(entry->cellId());
    for (const auto& [row, section] : {std::pair{-1, 0}, {0, -1}, {9, 0}, {0, 9}})
        screen->didSelectRow(row, section, {}); // leads nowhere
    EXPECT_EQ(opened, QStringList());

    tap("rate");
    tap("terms");
    tap("privacy");
    tap("instaFollow");
    isInstagramInstalled = true;
    tap("instaFollow");
    EXPECT_EQ(opened, QStringList({u"https://store.example.org/app/itunes-u/id1234567890"
                                   "?action=write-review&at=example&ct=PelmiraReview"_s,
                                   u"https://example.org/terms"_s, u"https://example.org/privacy"_s,
                                   u"https://www.example.org/pelmira-example"_s,
                                   u"instagram://user?username=pelmira-example"_s}));
    pageShown(true);
    EXPECT_FALSE(screen->alert()->isOpen());
    pageShown(false);
    expectMessage("settings.error.open");
    screen.reset();
    pageShown(false); // too late for anybody
}

TEST_F(SettingsTest, WhatIsNotFilledInIsTold)
{
    services.store = StorePages({});
    services.supportAddress = QString();
    hasMoreApps = false;
    for (const auto& terms : {std::optional<QString>(), std::optional(u"not an address"_s)}) {
        open({}, terms);
        for (const char* cellId : {"rate", "share", "feedback", "terms"}) {
            tap(cellId);
            expectMessage("settings.error.missing");
        }
    }
    tap("moreApps");
    expectMessage("settings.error.noApps");
    EXPECT_EQ(opened, QStringList());
    EXPECT_TRUE(mails.empty());
}

TEST_F(SettingsTest, TheStorePageIsCopiedOrMailedAndTheSupportMailTellsWhatItWasSentFrom)
{
    const QString page = u"https://store.example.org/app/id1234567890"_s;
    tap("share");
    EXPECT_EQ(screen->alert()->message(), page);
    screen->alert()->actionButtonPressed(0);
    EXPECT_EQ(copied, QStringList(page));
    EXPECT_TRUE(screen->progressHUD()->isSuccess());
    tap("share");
    screen->alert()->actionButtonPressed(1);
    ASSERT_EQ(mails.size(), 1U);
    EXPECT_EQ(mails[0].body, page);
    canSendMail = false;
    tap("share");
    EXPECT_EQ(screen->alert()->actionButtonTitles().size(), 1);

    screen->alert()->dismiss();
    mails.clear();
    canSendMail = true;
    tap("feedback");
    ASSERT_EQ(mails.size(), 1U);
    EXPECT_EQ(mails[0].recipient, u"support@example.org"_s);
    for (const char* label : {"App Version: unknown", "Device: ", "iOS version: ", "Free Space: "})
        EXPECT_TRUE(mails[0].body.contains(QLatin1String(label))) << label;
    pageShown(false);
    EXPECT_TRUE(screen->alert()->isOpen());
    screen->alert()->dismiss();
    canSendMail = false;
    tap("feedback");
    EXPECT_EQ(mails.size(), 1U);
    EXPECT_TRUE(screen->alert()->isOpen());
}

TEST_F(SettingsTest, TheLogIsSwitchedByItsSwitchOrTheConsentForm)
{
    EXPECT_FALSE(screen->eventLogSwitch()->isSelected());
    screen->handleEventLogSwitchToggled(true);
    EXPECT_TRUE(log.isOn());
    services.consentApplies = true;
    open();
    EXPECT_TRUE(screen->eventLogSwitch()->isSelected());
    tap("gdpr");
    screen->alert()->actionButtonPressed(1); // no
    EXPECT_FALSE(log.isOn() || screen->eventLogSwitch()->isSelected());
    tap("gdpr");
    screen->alert()->dismiss();
    EXPECT_FALSE(log.isOn());
    tap("gdpr");
    screen->alert()->actionButtonPressed(0);
    EXPECT_TRUE(log.isOn() && screen->eventLogSwitch()->isSelected());
}

} // namespace
} // namespace pelmira
