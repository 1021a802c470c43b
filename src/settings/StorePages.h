#pragma once

#include <QString>
#include <QUrl>

namespace pelmira {

/// Addresses of the store's pages. Null where a value is missing that they need.
class StorePages {
public:
    /// `store` is the scheme and host of the store's pages, none if it is null.
    explicit StorePages(QString store);
    /// Those of the store that the maker filled in.
    static StorePages ofMaker();

    QUrl appPage() const;
    QUrl writeReviewPage() const;
    /// The page of another application, which knows who led there.
    QUrl productPage(qint64 appleId, const QString& campaignToken) const;

private:
    QUrl page(const QString& pathAndQuery) const;

    QString _store;
};

} // namespace pelmira
