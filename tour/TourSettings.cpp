#include "Tour.h"

#include "FeedHost.h"
#include "platform/text/LocalizedStrings.h"
#include "promotion/ZKLCrossPromoteVC.h"
#include "settings/AppInfo.h"
#include "settings/EventLogVC.h"
#include "settings/SettingsVC.h"
#include "shell/NewHomeScreenVC.h"

#include <QTest>

namespace pelmira {

bool Tour::visitSettings(QSize windowSize)
{
    launch(windowSize);
    picture("home");
    settings();
    eventLog();
    return succeeded();
}

void Tour::settings()
{
    tapText("settings.title");
    const auto shown = [this] {
        return dynamic_cast<SettingsVC*>(_application.navigation().topScreen());
    };
    waitFor([&] { return shown() != nullptr; }, "the settings open");
    if (!shown())
        return;
    tapText("settings.eventLog.keep");
    expect(shown()->eventLogSwitch()->isSelected(), "the log is switched on");
    picture("settings");
    const QByteArray share = localized("settings.row.share").arg(AppInfo::displayName()).toUtf8();
    scrollTo(share.constData());
    tapItem(share.constData());
    waitFor([&] { return shown()->alert()->isOpen(); }, "the application can be passed on");
    picture("share-the-app");
    shown()->alert()->dismiss();
    settle();
    moreApps();
    tapText("generic.done");
    waitFor([&] { return shown() == nullptr; }, "the settings are left");
    settle();
}

void Tour::moreApps()
{
    tapText("settings.row.moreApps");
    picture("no-more-apps"); // there is no list yet
    if (auto* top = dynamic_cast<SettingsVC*>(_application.navigation().topScreen()))
        top->alert()->dismiss();
    settle();
    showMoreApps();
    picture("more-apps");
    const auto shown = [this] {
        return dynamic_cast<ZKLCrossPromoteVC*>(_application.navigation().topScreen());
    };
    tapItem(localized("moreapps.page").arg(2).arg(3).toUtf8().constData());
    settle();
    expect(shown() && shown()->currentPage() == 1, "the second page is shown");
    picture("more-apps-second-page");
    tapText("moreapps.close");
    waitFor([&] { return shown() == nullptr; }, "other applications are left");
    settle();
}

void Tour::showMoreApps()
{
    const FeedHost host;
    ZKLCrossPromoteManager& manager = _application.flow().settings().crossPromote();
    manager.configureCrossPromoteWithConfigUrl(host.feedUrl());
    waitFor([&] { return manager.isConfigReady(); }, "the list of applications comes");
    tapText("settings.row.moreApps");
    const auto shown = [this] {
        return dynamic_cast<ZKLCrossPromoteVC*>(_application.navigation().topScreen());
    };
    waitFor([&] { return shown() && !shown()->mainEntry()->icon().isNull(); },
            "other applications are shown");
    settle();
}

void Tour::eventLog()
{
    tapText("settings.title");
    settle();
    tapText("settings.row.eventLog");
    const auto shown = [this] {
        return dynamic_cast<EventLogVC*>(_application.navigation().topScreen());
    };
    waitFor([&] { return shown() != nullptr; }, "the log is shown");
    picture("event-log");
    tapText("generic.done");
    settle();
    tapText("generic.done");
    waitFor(
        [this] {
            return dynamic_cast<NewHomeScreenVC*>(_application.navigation().topScreen()) != nullptr;
        },
        "the settings are left");
    settle();
}

} // namespace pelmira
