#pragma once

#include "platform/net/BoundedFetch.h"
#include "platform/screen/ScreenStack.h"

#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QUrl>

#include <functional>
#include <memory>

namespace pelmira {

class ZKLCrossPromoteVC;

/// Fetches the list of the maker's other applications, once a run, and holds it. A list that can't
/// be had leaves its screen off until the next start. Main thread only.
class ZKLCrossPromoteManager {
public:
    using ScreenMaker =
        std::function<std::shared_ptr<ZKLCrossPromoteVC>(const QJsonObject& config)>;

    /// Not owned: the screens, which outlive this.
    ZKLCrossPromoteManager(ScreenStack& screens, ScreenMaker makeScreen);

    /// Does nothing once a list is held, or while one is fetched.
    void configureCrossPromoteWithConfigUrl(const QUrl& url);
    bool isConfigReady() const { return !_config.isEmpty(); }
    bool isFetching() const { return _fetch != nullptr; }

    /// Shows the list over the top screen; false without a list or a screen.
    bool showCrossPromoteIfConfigReady();
    /// The same; without a list or a screen the completion is called.
    void showCrossPromote(const std::function<void()>& completion);

private:
    void takeConfig(const QByteArray& text);

    ScreenStack& _screens;
    ScreenMaker _makeScreen;
    QJsonObject _config; ///< empty: none
    std::unique_ptr<QNetworkAccessManager> _network;
    std::unique_ptr<BoundedFetch> _fetch;
};

} // namespace pelmira
