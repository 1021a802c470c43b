#pragma once

#include "platform/storage/UserDefaults.h"

#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

namespace pelmira {

/// Constants of the application, and whether it was rated. Main thread only.
class ZKLConfigManager {
public:
    static ZKLConfigManager& sharedConfigManager();

    explicit ZKLConfigManager(UserDefaults& defaults);

    /// The help page: on the help host, or the one that is shipped, as no host is configured. A
    /// null address means that there is no help.
    QUrl helpUrl() const { return _helpUrl; }
    void setHelpUrl(const QUrl& url) { _helpUrl = url; }

    void setHasRated();
    bool hasUserRated() const;
    static constexpr int minSignificantEventsBeforeReview() { return 5; }

    /// The maker's social page, in the service's own application and on the web; null without one.
    static QUrl instagramAppUrl();
    static QUrl instagramWebUrl();
    static QString instagramFollowButtonText() { return QStringLiteral("Follow on Instagram"); }

    /// Whether the first of the user's languages is English.
    static bool isEnglish(const QStringList& preferredLanguages);
    static bool isEnglish();

    bool isRatingPushDisabled = false;
    QVariantMap configDictionary;

private:
    UserDefaults& _defaults;
    QUrl _helpUrl;
};

} // namespace pelmira
