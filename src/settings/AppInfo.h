#pragma once

#include <QString>

#include <optional>

namespace pelmira {

/// Who the application is to its store and its users. Filled at the launch; a value that the maker
/// didn't fill in is nothing. Main thread only.
class AppInfo {
public:
    /// Takes over what the maker of this build filled in.
    static void fill();

    static std::optional<QString> appleId();
    static void setAppleId(std::optional<QString> appleId);
    static std::optional<QString> affiliateToken();
    static void setAffiliateToken(std::optional<QString> token);
    static std::optional<QString> reviewCampaignToken();
    static void setReviewCampaignToken(std::optional<QString> token);
    static std::optional<QString> termsURLStr();
    static void setTermsURLStr(std::optional<QString> address);
    static std::optional<QString> privacyURLStr();
    static void setPrivacyURLStr(std::optional<QString> address);

    /// The application's name for its user; empty if it has none.
    static QString displayName();
    /// "unknown" for an application without a version.
    static QString version();
};

} // namespace pelmira
