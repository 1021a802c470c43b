#pragma once

#include <QByteArray>
#include <QString>

namespace pelmira {

/// A page from the net as it is shown: UTF-8, without pictures, each of which would be another
/// request.
QString helpPageFromNet(const QByteArray& bytes);

/// Where in the shown text the anchor that the link names stands, as a number of characters; -1 for
/// a link that leads out of the page.
int positionOfLinkInPage(const QString& link, const QString& page);

} // namespace pelmira
