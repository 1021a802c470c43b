#pragma once

#include "controls/ZKLConfigManager.h"
#include "persistence/preferences/PerstistenceHelper.h"
#include "platform/storage/UserDefaults.h"

#include <QDateTime>

#include <cstdint>
#include <functional>

namespace pelmira {

/// When to ask for a review: after five significant events, once a version, never twice in 90
/// days, and not any more once the user has gone to rate. Main thread only.
class ZKLReviewHelper {
public:
    using Clock = std::function<QDateTime()>;

    /// The preferences outlive this. `showPrompt` asks the user.
    ZKLReviewHelper(UserDefaults& defaults, std::function<void()> showPrompt,
                    Clock clock = &QDateTime::currentDateTimeUtc);

    void setNumSignificantEvents(std::int64_t number) { _numSignificantEvents = number; }
    bool shouldRequestReview();
    /// Asks, and notes that.
    void requestReview();

private:
    bool wasAskedLately();

    UserDefaults& _defaults;
    PerstistenceHelper _persistence;
    ZKLConfigManager _config;
    std::function<void()> _showPrompt;
    Clock _clock;
    std::int64_t _numSignificantEvents = 0;
};

} // namespace pelmira
