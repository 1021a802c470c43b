#pragma once

#include <QByteArray>
#include <QString>

namespace pelmira {

/// A page from the net as it is shown: UTF-8, and of its tags those of text, lists, links and plain
/// tables. A picture or a style would be another request, or a file of this device; tables within
/// tables would take for ever to lay out.
QString helpPageFromNet(const QByteArray& bytes);

/// Where in the shown text the anchor that the link names stands, as a number of characters; -1 for
/// a link that leads out of the page.
int positionOfLinkInPage(const QString& link, const QString& page);

} // namespace pelmira
