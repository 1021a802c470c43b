#pragma once

#include "controls/Alert.h"
#include "controls/InterfaceButton.h"
#include "controls/ZKLProgressHUD.h"
#include "platform/screen/Screen.h"
#include "settings/EventLog.h"
#include "settings/FeedbackHelper.h"
#include "settings/SettingsCellGroup.h"
#include "settings/StorePages.h"

#include <QRectF>
#include <QString>
#include <QUrl>
#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace pelmira {

/// The settings: rows that lead out, to the store, mail, the web and other applications, and one
/// switch, for the log of use. Every tap is answered: what can't be shown is told.
class SettingsVC final : public Screen, public std::enable_shared_from_this<SettingsVC> {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QVariantList sections READ sections CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* eventLogSwitch READ eventLogSwitch CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)
    Q_PROPERTY(pelmira::ZKLProgressHUD* progressHUD READ progressHUD CONSTANT)

public:
    struct Services {
        /// The completion is told whether the user was shown anything.
        std::function<void(const QUrl& page, std::function<void(bool)>)> openPage;
        FeedbackHelper::MailProgram mailProgram;
        std::function<void(const QString&)> copyText;
        std::function<bool()> isInstagramInstalled;
        /// Shows the maker's other applications; false if no list of them is at hand.
        std::function<bool()> showMoreApps;
        std::function<void()> showEventLog;
        StorePages store = StorePages::ofMaker();
        QString supportAddress;
        /// Whether the user has to be asked before anything is noted.
        bool consentApplies = false;
    };

    /// The event log outlives the screen.
    static std::shared_ptr<SettingsVC> make(std::optional<QString> appleId,
                                            std::optional<QString> termsUrlStr,
                                            std::optional<QString> privacyUrlStr,
                                            EventLog& eventLog, Services services);

    std::function<void()> dismissBlock;

    Q_INVOKABLE void handleDonePressed();
    /// `cell` is the row's frame in the screen, in points.
    Q_INVOKABLE void didSelectRow(int row, int inSection, QRectF cell);
    Q_INVOKABLE void handleEventLogSwitchToggled(bool isOn);

    QUrl layoutFile() const override;
    void pressedBesideSheet() override { handleDonePressed(); }

    const std::vector<SettingsCellGroup>& groups() const { return _groups; }
    /// The name of the icon in the cells of a kind; nothing for a kind that no cell shows.
    static std::optional<QString> iconForCellId(const QString& cellId);

    static QString title();
    /// The groups for the layout file. A row of an unknown kind is an empty plain cell.
    QVariantList sections() const;
    InterfaceButton* eventLogSwitch() { return &_eventLogSwitch; }
    Alert* alert() { return &_alert; }
    ZKLProgressHUD* progressHUD() { return &_progressHUD; }

private:
    SettingsVC(std::optional<QString> appleId, std::optional<QString> termsUrlStr,
               std::optional<QString> privacyUrlStr, EventLog& eventLog, Services services);

    void buildGroups();
    void rate();
    void share(QRectF cell);
    void sendFeedback();
    void followOnInstagram();
    void showMoreApps();
    void showConsentForm(QRectF cell);
    void openAddress(const std::optional<QString>& address);
    void open(const QUrl& page);

    std::optional<QString> _appleId;
    std::optional<QString> _termsUrlStr;
    std::optional<QString> _privacyUrlStr;
    std::vector<SettingsCellGroup> _groups;
    std::optional<FeedbackHelper> _feedbackHelper; ///< made at the first use

    EventLog& _eventLog;
    const Services _services;
    InterfaceButton _eventLogSwitch;
    Alert _alert;
    ZKLProgressHUD _progressHUD;
};

} // namespace pelmira
