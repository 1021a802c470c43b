#include "settings/StorePages.h"

#include "maker/MakerValues.h"
#include "settings/AppInfo.h"

#include <utility>

namespace pelmira {
namespace {

QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

} // namespace

StorePages::StorePages(QString store) : _store(std::move(store))
{
}

StorePages StorePages::ofMaker()
{
    return StorePages(makerValues().store);
}

QUrl StorePages::page(const QString& pathAndQuery) const
{
    return _store.isEmpty() ? QUrl() : QUrl(_store + pathAndQuery);
}

QUrl StorePages::appPage() const
{
    const auto appleId = AppInfo::appleId();
    return appleId ? page(QStringLiteral("/app/id") + encoded(*appleId)) : QUrl();
}

QUrl StorePages::writeReviewPage() const
{
    const auto appleId = AppInfo::appleId();
    const auto affiliate = AppInfo::affiliateToken();
    const auto campaign = AppInfo::reviewCampaignToken();
    if (!appleId || !affiliate || !campaign)
        return {};
    return page(QStringLiteral("/app/itunes-u/id%1?action=write-review&at=%2&ct=%3")
                    .arg(encoded(*appleId), encoded(*affiliate), encoded(*campaign)));
}

QUrl StorePages::productPage(qint64 appleId, const QString& campaignToken) const
{
    QString query;
    if (const auto affiliate = AppInfo::affiliateToken())
        query += QStringLiteral("&at=") + encoded(*affiliate);
    if (!campaignToken.isEmpty())
        query += QStringLiteral("&ct=") + encoded(campaignToken);
    if (!query.isEmpty())
        query[0] = u'?';
    return page(QStringLiteral("/app/id%1").arg(appleId) + query);
}

} // namespace pelmira
