#pragma once

#include <QString>

namespace pelmira {

/// The maker's values, as maker.cmake explains them. What isn't filled in is null.
struct MakerValues {
    QString version;
    QString displayName;
    QString store;
    QString appleId;
    QString affiliateToken;
    QString reviewCampaignToken;
    QString termsUrl;
    QString privacyUrl;
    QString supportAddress;
    QString instagramAccount;
    QString instagramWebUrl;
    QString helpHost;
    QString feedUrl;
    bool consentApplies = false;
};

const MakerValues& makerValues();

} // namespace pelmira
