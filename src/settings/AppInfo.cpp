#include "settings/AppInfo.h"

#include "maker/MakerValues.h"

#include <QGuiApplication>

#include <utility>

namespace pelmira {
namespace {

struct Values {
    std::optional<QString> appleId;
    std::optional<QString> affiliateToken;
    std::optional<QString> reviewCampaignToken;
    std::optional<QString> termsURLStr;
    std::optional<QString> privacyURLStr;
};

Values& values()
{
    static Values values;
    return values;
}

std::optional<QString> unlessNull(const QString& value)
{
    return value.isNull() ? std::nullopt : std::optional(value);
}

} // namespace

void AppInfo::fill()
{
    const MakerValues& maker = makerValues();
    setAppleId(unlessNull(maker.appleId));
    setAffiliateToken(unlessNull(maker.affiliateToken));
    setReviewCampaignToken(unlessNull(maker.reviewCampaignToken));
    setTermsURLStr(unlessNull(maker.termsUrl));
    setPrivacyURLStr(unlessNull(maker.privacyUrl));
}

std::optional<QString> AppInfo::appleId()
{
    return values().appleId;
}

void AppInfo::setAppleId(std::optional<QString> appleId)
{
    values().appleId = std::move(appleId);
}

std::optional<QString> AppInfo::affiliateToken()
{
    return values().affiliateToken;
}

void AppInfo::setAffiliateToken(std::optional<QString> token)
{
    values().affiliateToken = std::move(token);
}

std::optional<QString> AppInfo::reviewCampaignToken()
{
    return values().reviewCampaignToken;
}

void AppInfo::setReviewCampaignToken(std::optional<QString> token)
{
    values().reviewCampaignToken = std::move(token);
}

std::optional<QString> AppInfo::termsURLStr()
{
    return values().termsURLStr;
}

void AppInfo::setTermsURLStr(std::optional<QString> address)
{
    values().termsURLStr = std::move(address);
}

std::optional<QString> AppInfo::privacyURLStr()
{
    return values().privacyURLStr;
}

void AppInfo::setPrivacyURLStr(std::optional<QString> address)
{
    values().privacyURLStr = std::move(address);
}

QString AppInfo::displayName()
{
    return QGuiApplication::applicationDisplayName();
}

QString AppInfo::version()
{
    const QString version = QCoreApplication::applicationVersion();
    return version.isEmpty() ? QStringLiteral("unknown") : version;
}

} // namespace pelmira
