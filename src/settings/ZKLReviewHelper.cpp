#include "settings/ZKLReviewHelper.h"

#include <QCoreApplication>

#include <utility>

namespace pelmira {
namespace {

constexpr std::int64_t secondsBetweenRequests = 90LL * 24 * 60 * 60;

const QString requestedAtKey = QStringLiteral("reviewRequestedAt"); // seconds since 1970, UTC

} // namespace

ZKLReviewHelper::ZKLReviewHelper(UserDefaults& defaults, std::function<void()> showPrompt,
                                 Clock clock)
    : _defaults(defaults), _persistence(defaults), _config(defaults),
      _showPrompt(std::move(showPrompt)), _clock(std::move(clock))
{
}

bool ZKLReviewHelper::shouldRequestReview()
{
    return _numSignificantEvents >= ZKLConfigManager::minSignificantEventsBeforeReview() &&
           !_config.hasUserRated() &&
           _defaults.stringForKey(_persistence.reviewRequestedVersionKey) !=
               QCoreApplication::applicationVersion() &&
           !wasAskedLately();
}

bool ZKLReviewHelper::wasAskedLately()
{
    const auto askedAt = _defaults.integerForKey(requestedAtKey);
    if (!askedAt)
        return false;
    const std::int64_t now = _clock().toSecsSinceEpoch();
    if (*askedAt > now) { // the clock was wrong then or is now: the wait begins anew
        _defaults.setInteger(now, requestedAtKey);
        return true;
    }
    return *askedAt > now - secondsBetweenRequests;
}

void ZKLReviewHelper::requestReview()
{
    _persistence.setReviewRequestedForThisVersion();
    _defaults.setInteger(_clock().toSecsSinceEpoch(), requestedAtKey);
    if (_showPrompt)
        _showPrompt();
}

} // namespace pelmira
