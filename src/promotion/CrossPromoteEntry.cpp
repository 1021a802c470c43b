#include "promotion/CrossPromoteEntry.h"

#include <QJsonValue>

#include <cmath>

namespace pelmira {
namespace {

constexpr qsizetype longestName = 100; // letters
constexpr double largestId = 9007199254740991.0;

std::optional<qint64> identifier(const QJsonValue& value)
{
    const double number = value.toDouble(-1.0);
    if (!value.isDouble() || number < 0.0 || number > largestId || number != std::floor(number))
        return std::nullopt;
    return static_cast<qint64>(number);
}

} // namespace

CrossPromoteEntry CrossPromoteEntry::fromJson(const QJsonObject& object)
{
    const QJsonValue appleId = object[QLatin1String("appleId")];
    const QJsonValue stars = object[QLatin1String("stars")];
    CrossPromoteEntry entry;
    entry.name = object[QLatin1String("name")].toString().left(longestName).simplified();
    entry.icon = QUrl(object[QLatin1String("icon")].toString(), QUrl::StrictMode);
    entry.appleId = identifier(appleId);
    if (stars.isDouble())
        entry.stars = stars.toDouble();
    entry.campaignCode = object[QLatin1String("campaign-code")].toString();
    entry.isShown = !entry.name.isEmpty() && !appleId.isUndefined() &&
                    !object[QLatin1String("icon")].toString().isEmpty();
    return entry;
}

} // namespace pelmira
