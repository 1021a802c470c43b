#include "settings/SettingsVC.h"

#include "controls/ZKLConfigManager.h"
#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"
#include "settings/AppInfo.h"
#include "settings/BasicSettingsEntry.h"
#include "settings/ReviewHelper.h"

#include <QMap>
#include <QVariantMap>

#include <utility>

namespace pelmira {
std::shared_ptr<SettingsVC> SettingsVC::make(std::optional<QString> appleId,
                                             std::optional<QString> termsUrlStr,
                                             std::optional<QString> privacyUrlStr,
                                             EventLog& eventLog, Services services)
{
    return std::shared_ptr<SettingsVC>(new SettingsVC(std::move(appleId), std::move(termsUrlStr),
                                                      std::move(privacyUrlStr), eventLog,
                                                      std::move(services)));
}

SettingsVC::SettingsVC(std::optional<QString> appleId, std::optional<QString> termsUrlStr,
                       std::optional<QString> privacyUrlStr, EventLog& eventLog, Services services)
    : _appleId(std::move(appleId)), _termsUrlStr(std::move(termsUrlStr)),
      _privacyUrlStr(std::move(privacyUrlStr)), _eventLog(eventLog), _services(std::move(services))
{
    _eventLogSwitch.setSelected(_eventLog.isOn());
    buildGroups();
}

void SettingsVC::buildGroups()
{
    using Tap = SettingsCellEntry::TapBlock;
    const auto add = [](SettingsCellGroup& group, const char* cellId, const QString& title,
                        Tap tapBlock) {
        group.entries.push_back(std::make_shared<BasicSettingsEntry>(QString::fromLatin1(cellId),
                                                                     title, std::move(tapBlock)));
    };
    SettingsCellGroup support{localized("settings.header.support"), std::nullopt, {}};
    add(support, "rate", localized("settings.row.rate"), [this](QRectF) { rate(); });
    add(support, "share", localized("settings.row.share").arg(AppInfo::displayName()),
        [this](QRectF cell) { share(cell); });
    add(support, "feedback", localized("settings.row.feedback"),
        [this](QRectF) { sendFeedback(); });
    add(support, "instaFollow", localized("settings.row.follow"),
        [this](QRectF) { followOnInstagram(); });
    add(support, "moreApps", localized("settings.row.moreApps"),
        [this](QRectF) { showMoreApps(); });

    SettingsCellGroup legal{localized("settings.header.legal"), std::nullopt, {}};
    add(legal, "terms", localized("settings.row.terms"),
        [this](QRectF) { openAddress(_termsUrlStr); });
    add(legal, "privacy", localized("settings.row.privacy"),
        [this](QRectF) { openAddress(_privacyUrlStr); });
    if (_services.consentApplies)
        add(legal, "gdpr", localized("settings.row.consent"),
            [this](QRectF cell) { showConsentForm(cell); });

    SettingsCellGroup device{localized("settings.header.device"),
                             AppInfo::displayName() + QStringLiteral(" v") + AppInfo::version(),
                             {}};
    add(device, "eventLog", localized("settings.row.eventLog"), [this](QRectF) {
        if (_services.showEventLog)
            _services.showEventLog();
    });
    _groups = {std::move(support), std::move(legal), std::move(device)};
}

QUrl SettingsVC::layoutFile() const
{
    return layoutUrl("SettingsScreen");
}

QString SettingsVC::title()
{
    return localized("settings.title");
}

std::optional<QString> SettingsVC::iconForCellId(const QString& cellId)
{
    static const QMap<QString, QString> icons{
        {QStringLiteral("rate"), QStringLiteral("star")},
        {QStringLiteral("share"), QStringLiteral("share")},
        {QStringLiteral("feedback"), QStringLiteral("mail")},
        {QStringLiteral("instaFollow"), QStringLiteral("follow")},
        {QStringLiteral("moreApps"), QStringLiteral("more-apps")},
        {QStringLiteral("terms"), QStringLiteral("document")},
        {QStringLiteral("privacy"), QStringLiteral("privacy")},
        {QStringLiteral("gdpr"), QStringLiteral("consent")},
        {QStringLiteral("eventLog"), QStringLiteral("event-log")},
    };
    const auto found = icons.find(cellId);
    return found == icons.end() ? std::nullopt : std::optional(*found);
}

QVariantList SettingsVC::sections() const
{
    QVariantList sections;
    for (const SettingsCellGroup& group : _groups) {
        QVariantList rows;
        for (const auto& entry : group.entries) {
            const auto icon = iconForCellId(entry->cellId());
            rows << QVariantMap{{QStringLiteral("cellId"), entry->cellId()},
                                {QStringLiteral("icon"), icon.value_or(QString())},
                                {QStringLiteral("title"), icon ? entry->title() : QString()}};
        }
        sections << QVariantMap{{QStringLiteral("header"), group.headerTitle.value_or(QString())},
                                {QStringLiteral("footer"), group.footerTitle.value_or(QString())},
                                {QStringLiteral("rows"), rows}};
    }
    return sections;
}

void SettingsVC::didSelectRow(int row, int inSection, QRectF cell)
{
    if (inSection < 0 || inSection >= int(_groups.size()))
        return;
    const auto& entries = _groups[std::size_t(inSection)].entries;
    if (row < 0 || row >= int(entries.size()))
        return;
    if (const auto tapBlock = entries[std::size_t(row)]->tapBlock())
        tapBlock(cell);
}

void SettingsVC::handleDonePressed()
{
    if (dismissBlock)
        dismissBlock();
}

void SettingsVC::handleEventLogSwitchToggled(bool isOn)
{
    _eventLog.setOn(isOn);
    _eventLogSwitch.setSelected(isOn);
}

void SettingsVC::rate()
{
    if (!ReviewHelper::gotoReviews(_services.store, [this](const QUrl& page) { open(page); }))
        _alert.showMessage(localized("settings.error.missing"));
}

void SettingsVC::share(QRectF cell)
{
    const QUrl page = _appleId ? _services.store.appPage() : QUrl();
    if (!page.isValid()) {
        _alert.showMessage(localized("settings.error.missing"));
        return;
    }
    const QString address = page.toString(QUrl::FullyEncoded);
    const QString copy = localized("settings.share.copy");
    const QString mail = localized("settings.share.mail");
    QStringList actions{copy};
    if (_services.mailProgram.canSendMail())
        actions << mail;
    _alert.show(
        {{}, address, localized("generic.cancel"), actions},
        [=, this](const QString& title) {
            if (title == copy) {
                _services.copyText(address);
                _progressHUD.showSuccessWithStatus(localized("settings.share.copied"));
                return;
            }
            _services.mailProgram.compose({{}, AppInfo::displayName(), address},
                                          [self = weak_from_this()](bool wasPresented) {
                                              const auto screen = self.lock();
                                              if (screen && !wasPresented)
                                                  screen->_alert.showMessageInTurn(
                                                      localized("settings.error.open"));
                                          });
        },
        cell);
}

void SettingsVC::sendFeedback()
{
    if (_services.supportAddress.isEmpty()) {
        _alert.showMessage(localized("settings.error.missing"));
        return;
    }
    if (!_feedbackHelper)
        _feedbackHelper.emplace(&_alert, _services.mailProgram, _services.supportAddress);
    _feedbackHelper->showMail();
}

void SettingsVC::followOnInstagram()
{
    const QUrl app = ZKLConfigManager::instagramAppUrl();
    open(app.isValid() && _services.isInstagramInstalled() ? app
                                                           : ZKLConfigManager::instagramWebUrl());
}

void SettingsVC::showMoreApps()
{
    if (!_services.showMoreApps())
        _alert.showMessage(localized("settings.error.noApps"));
}

void SettingsVC::showConsentForm(QRectF cell)
{
    const QString yes = localized("generic.yes");
    _alert.show(
        {localized("settings.consent.title"), localized("settings.consent.message"),
         localized("generic.cancel"), QStringList{yes, localized("generic.no")}},
        [=, this](const QString& title) {
            handleEventLogSwitchToggled(title == yes);
            logLine("Show form done");
        },
        cell);
}

void SettingsVC::openAddress(const std::optional<QString>& address)
{
    open(address ? QUrl(*address, QUrl::StrictMode) : QUrl());
}

void SettingsVC::open(const QUrl& page)
{
    if (!page.isValid() || page.scheme().isEmpty()) {
        _alert.showMessage(localized("settings.error.missing"));
        return;
    }
    _services.openPage(page, [self = weak_from_this()](bool wasPresented) {
        const auto screen = self.lock();
        if (screen && !wasPresented)
            screen->_alert.showMessageInTurn(localized("settings.error.open"));
    });
}

} // namespace pelmira
