#include "shell/SettingsFlow.h"

#include "controls/ZKLConfigManager.h"
#include "export/SaveViewController.h"
#include "maker/MakerValues.h"
#include "platform/portal/SchemeHandlers.h"
#include "platform/text/LocalizedStrings.h"
#include "promotion/ZKLCrossPromoteVC.h"
#include "settings/AppInfo.h"
#include "settings/EventLogVC.h"
#include "settings/ReviewHelper.h"
#include "settings/SettingsVC.h"
#include "settings/StorePages.h"
#include "settings/ZKLAnalyticsHelper.h"
#include "settings/ZKLReviewHelper.h"

#include <utility>

namespace pelmira {
namespace {

QUrl socialPage()
{
    const QUrl app = ZKLConfigManager::instagramAppUrl();
    return app.isValid() && isSchemeHandled(app.scheme()) ? app
                                                          : ZKLConfigManager::instagramWebUrl();
}

} // namespace

SettingsFlow::SettingsFlow(ScreenStack& screens, const AppServices& services)
    : _screens(screens), _services(services),
      _eventLog(UserDefaults::standardUserDefaults(), EventLog::defaultPath()),
      _crossPromote(screens, [this](const QJsonObject& config) {
          ZKLCrossPromoteVC::Services promotion;
          promotion.productPage = [](qint64 appleId, const QString& campaignCode) {
              return StorePages::ofMaker().productPage(appleId, campaignCode);
          };
          promotion.openPage = _services.openPage;
          const auto screen = ZKLCrossPromoteVC::initWithConfig(config, std::move(promotion));
          screen->dismissBlock = [this] { _screens.dismissViewController({}); };
          return screen;
      })
{
    AppInfo::fill();
}

SettingsFlow::~SettingsFlow()
{
    ZKLAnalyticsHelper::setSink(nullptr);
}

void SettingsFlow::start()
{
    ZKLAnalyticsHelper::setSink([this](const QString& name, const auto& parameters) {
        _eventLog.logEventWithName(name, parameters);
    });
    if (const QString feed = makerValues().feedUrl; !feed.isEmpty())
        _crossPromote.configureCrossPromoteWithConfigUrl(QUrl(feed));
}

bool SettingsFlow::canShowSettings()
{
    return AppInfo::appleId() && AppInfo::termsURLStr() && AppInfo::privacyURLStr();
}

std::shared_ptr<SettingsVC> SettingsFlow::makeSettings()
{
    SettingsVC::Services services;
    services.openPage = _services.openPage;
    services.mailProgram = {_services.canSendMail, _services.composeMail};
    services.copyText = _services.copyText;
    services.isInstagramInstalled = [] { return isSchemeHandled(QStringLiteral("instagram")); };
    services.showMoreApps = [this] { return _crossPromote.showCrossPromoteIfConfigReady(); };
    services.showEventLog = [this] { presentEventLog(); };
    services.supportAddress = makerValues().supportAddress;
    services.consentApplies = makerValues().consentApplies;
    return SettingsVC::make(AppInfo::appleId(), AppInfo::termsURLStr(), AppInfo::privacyURLStr(),
                            _eventLog, std::move(services));
}

void SettingsFlow::presentSettings()
{
    if (!canShowSettings())
        return;
    const auto settings = makeSettings();
    settings->dismissBlock = [this] { _screens.dismissViewController({}); };
    _screens.presentViewController(settings, ModalPresentationStyle::FormSheet);
}

void SettingsFlow::presentEventLog()
{
    const auto log = std::make_shared<EventLogVC>(_eventLog);
    log->dismissBlock = [this] { _screens.dismissViewController({}); };
    _screens.presentViewController(log, ModalPresentationStyle::FormSheet);
}

void SettingsFlow::connectSaveView(const std::shared_ptr<SaveViewController>& saveView)
{
    const auto open = [this, weak = std::weak_ptr(saveView)](const QUrl& page) {
        _services.openPage(page, [weak](bool wasPresented) {
            const auto screen = weak.lock();
            if (screen && !wasPresented)
                screen->alert()->showMessageInTurn(localized("settings.error.open"));
        });
    };
    RateMoreContainerView::Blocks blocks;
    if (StorePages::ofMaker().writeReviewPage().isValid())
        blocks.rate = [open] {
            ZKLConfigManager::sharedConfigManager().setHasRated();
            ReviewHelper::gotoReviews(StorePages::ofMaker(), open);
        };
    if (_crossPromote.isConfigReady())
        blocks.showMoreApps = [this] { _crossPromote.showCrossPromoteIfConfigReady(); };
    if (socialPage().isValid())
        blocks.follow = [open] { open(socialPage()); };
    if (blocks.rate)
        saveView->answeredBlock = [this, weak = std::weak_ptr(saveView)] {
            if (const auto screen = weak.lock())
                requestReview(*screen);
        };
    saveView->rateMoreContainerView()->setBlocks(std::move(blocks));
}

void SettingsFlow::requestReview(SaveViewController& saveView)
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    ZKLReviewHelper reviewHelper(defaults, [&saveView] {
        saveView.alert()->show(
            {localized("savescreen.review.title").arg(AppInfo::displayName()),
             localized("savescreen.review.message"), localized("savescreen.review.later"),
             localized("savescreen.review.rate")},
            [&saveView] { saveView.rateMoreContainerView()->rateUsButtonPressed(); });
    });
    ReviewHelper::showReviewRequestIfWeShould(PerstistenceHelper(defaults), reviewHelper);
}

} // namespace pelmira
