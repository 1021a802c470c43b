#pragma once

#include <QUrl>

#include <functional>

namespace pelmira {

class PerstistenceHelper;
class StorePages;
class ZKLReviewHelper;

/// Asks for a review in the store at a good moment, and leads there.
class ReviewHelper {
public:
    /// To be called when the user has done something worth counting.
    static void showReviewRequestIfWeShould(const PerstistenceHelper& persistence,
                                            ZKLReviewHelper& reviewHelper);

    /// Opens the store's page for reviews; false, and nothing opened, if a value is missing that
    /// its address needs.
    static bool gotoReviews(const StorePages& store,
                            const std::function<void(const QUrl& page)>& openPage);
};

} // namespace pelmira
