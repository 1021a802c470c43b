#pragma once

#include "controls/Alert.h"
#include "platform/net/BoundedFetch.h"
#include "platform/screen/Screen.h"

#include <QNetworkAccessManager>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

namespace pelmira {

class ZKLConfigManager;

/// The help screen. It loads its page each time it is opened: from the application itself, or from
/// the help host, within limits of size and time. The page's HTML is shown as rich text; of a page
/// from the net the pictures are left out, as each would be another request. Main thread only.
class ZKLHelpController final : public Screen {
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(QString page READ page NOTIFY changed)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)

public:
    explicit ZKLHelpController(const ZKLConfigManager& config);

    /// Takes this screen away.
    std::function<void()> dismissBlock;

    Q_INVOKABLE void doneButtonPressed();
    /// Where in the shown text an anchor of the page stands, as a number of characters; -1 for a
    /// link that leads out of the page.
    Q_INVOKABLE int positionOfLink(const QString& link) const;

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void pressedBesideSheet() override { doneButtonPressed(); }

    QString title() const { return _title; }
    bool isLoading() const { return _isLoading; }
    QString page() const { return _page; }
    Alert* alert() { return &_alert; }

Q_SIGNALS:
    void changed();

private:
    void loadRequest(const QUrl& url);
    void webViewDidFinishLoad(const QString& page);
    void webViewDidFailLoadWithError(const QString& error);
    void showErrorAlert();

    const ZKLConfigManager& _config;
    std::unique_ptr<QNetworkAccessManager> _network; ///< made for a page from the net
    std::unique_ptr<BoundedFetch> _fetch;
    QString _title;
    QString _page;
    Alert _alert;
    bool _isLoading = false;
};

} // namespace pelmira
