#include "settings/ReviewHelper.h"

#include "persistence/preferences/PerstistenceHelper.h"
#include "settings/StorePages.h"
#include "settings/ZKLReviewHelper.h"

namespace pelmira {

void ReviewHelper::showReviewRequestIfWeShould(const PerstistenceHelper& persistence,
                                               ZKLReviewHelper& reviewHelper)
{
    reviewHelper.setNumSignificantEvents(persistence.numSaves());
    if (reviewHelper.shouldRequestReview())
        reviewHelper.requestReview();
}

bool ReviewHelper::gotoReviews(const StorePages& store,
                               const std::function<void(const QUrl&)>& openPage)
{
    const QUrl page = store.writeReviewPage();
    if (!page.isValid())
        return false;
    openPage(page);
    return true;
}

} // namespace pelmira
