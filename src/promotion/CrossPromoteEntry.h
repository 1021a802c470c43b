#pragma once

#include <QJsonObject>
#include <QString>
#include <QUrl>

#include <optional>

namespace pelmira {

/// One of the maker's applications, as the feed tells of it. Values of a wrong type count as
/// missing.
struct CrossPromoteEntry {
    QString name;
    QUrl icon;
    std::optional<qint64> appleId; ///< without it there is no page in the store to lead to
    std::optional<double> stars;
    QString campaignCode;
    bool isShown = false; ///< the feed gives it a name, an identifier of any type and an icon

    static CrossPromoteEntry fromJson(const QJsonObject& object);
};

} // namespace pelmira
