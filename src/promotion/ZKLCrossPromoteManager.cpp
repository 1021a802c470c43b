#include "promotion/ZKLCrossPromoteManager.h"

#include "platform/base/Log.h"
#include "platform/net/BoundedJson.h"
#include "promotion/ZKLCrossPromoteVC.h"

#include <optional>
#include <utility>

namespace pelmira {
namespace {

constexpr FetchLimits feedLimits{256 * 1024, 15000};
constexpr int deepestFeed = 8; // it needs three

} // namespace

ZKLCrossPromoteManager::ZKLCrossPromoteManager(ScreenStack& screens, ScreenMaker makeScreen)
    : _screens(screens), _makeScreen(std::move(makeScreen))
{
}

void ZKLCrossPromoteManager::configureCrossPromoteWithConfigUrl(const QUrl& url)
{
    if (isConfigReady() || _fetch)
        return;
    _network = std::make_unique<QNetworkAccessManager>();
    _fetch = std::make_unique<BoundedFetch>(
        *_network, url, feedLimits,
        [this](const std::optional<QByteArray>& bytes, const QString& problem) {
            const auto fetch = std::move(_fetch);
            if (bytes)
                takeConfig(*bytes);
            else
                logLine("More apps: %s", qPrintable(problem));
        });
}

void ZKLCrossPromoteManager::takeConfig(const QByteArray& text)
{
    _config = jsonObjectFromData(text, deepestFeed).value_or(QJsonObject());
}

bool ZKLCrossPromoteManager::showCrossPromoteIfConfigReady()
{
    if (!isConfigReady() || !_screens.topScreen())
        return false;
    _screens.presentViewController(_makeScreen(_config), ModalPresentationStyle::FormSheet);
    return true;
}

void ZKLCrossPromoteManager::showCrossPromote(const std::function<void()>& completion)
{
    if (!showCrossPromoteIfConfigReady() && completion)
        completion();
}

} // namespace pelmira
