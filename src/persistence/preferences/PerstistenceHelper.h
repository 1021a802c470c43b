#pragma once

#include "platform/storage/UserDefaults.h"

#include <QString>

#include <cstdint>

namespace pelmira {

/// The lasting values of saving and of asking for a review. Main thread.
class PerstistenceHelper {
public:
    static PerstistenceHelper& sharedInstance();

    explicit PerstistenceHelper(UserDefaults& defaults);

    /// How many times the save screen was entered.
    std::int64_t numSaves() const;
    /// A count that can't grow any further is a bug: it ends the process.
    void incrementNumSaves();

    bool saveTransparentAsHEIF() const;
    void setSaveTransparentAsHEIF(bool saveAsHeif);

    /// Whether saved pictures get clean edges; at first they don't.
    bool savesCleanEdges() const;
    void setSavesCleanEdges(bool cleanEdges);

    /// Whether the user was told where saved pictures go.
    bool wasSaveFolderShown() const;
    void setSaveFolderShown();

    /// Notes the application's version; an application without one notes nothing.
    void setReviewRequestedForThisVersion();

    const QString minSignificantEventsBeforeReviewKey =
        QStringLiteral("minSignificantEventsBeforeReview");
    const QString reviewPushEnabledKey = QStringLiteral("reviewPushNew");
    const QString reviewRequestedVersionKey = QStringLiteral("reviewRequestedVersion");
    const QString saveAsHeifKey = QStringLiteral("saveAsHeif");

private:
    UserDefaults& _defaults;
};

} // namespace pelmira
