#include "platform/portal/SchemeHandlers.h"

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace pelmira {
namespace {

constexpr qint64 longestLine = 64 * 1024;

bool cacheNames(const QString& path, const QByteArray& entry)
{
    QFile cache(path);
    if (!cache.open(QIODevice::ReadOnly))
        return false;
    while (!cache.atEnd())
        if (cache.readLine(longestLine).startsWith(entry))
            return true;
    return false;
}

} // namespace

bool isSchemeHandled(const QString& scheme, const QStringList& dataFolders)
{
    const QByteArray entry = "x-scheme-handler/" + scheme.toUtf8() + '=';
    return std::any_of(dataFolders.begin(), dataFolders.end(), [&](const QString& folder) {
        return cacheNames(folder + QStringLiteral("/applications/mimeinfo.cache"), entry);
    });
}

bool isSchemeHandled(const QString& scheme)
{
    return isSchemeHandled(scheme,
                           QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation));
}

} // namespace pelmira
