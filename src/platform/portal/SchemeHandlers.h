#pragma once

#include <QString>
#include <QStringList>

namespace pelmira {

/// Whether an application says that it opens addresses of a scheme such as "mailto"
/// (freedesktop.org, "Association between MIME types and applications", mimeinfo.cache). A sandbox
/// sees only the applications in it.
bool isSchemeHandled(const QString& scheme);
/// The same for other folders than the session's.
bool isSchemeHandled(const QString& scheme, const QStringList& dataFolders);

} // namespace pelmira
