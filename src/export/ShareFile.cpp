#include "export/ShareFile.h"

#include "platform/storage/AtomicFile.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace pelmira {

ShareFile::ShareFile() : ShareFile(QDir::tempPath())
{
}

ShareFile::ShareFile(const QString& temporaryFolder)
    : _folder(QStringLiteral("%1/pelmira-%2").arg(temporaryFolder).arg(getuid()))
{
}

bool ShareFile::makeFolder() const
{
    const QByteArray folder = QFile::encodeName(_folder);
    if (mkdir(folder.constData(), 0700) == 0)
        return true;
    struct stat status = {};
    return errno == EEXIST && lstat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == getuid() && (status.st_mode & 077) == 0;
}

bool ShareFile::write(const QString& path, QByteArrayView data) const
{
    if (!makeFolder())
        return false;
    QFile::remove(path);
    return !data.isEmpty() &&
           !writeFileAtomically(path, data, IfExists::Replace, Durability::OutlivesProcess, 0600);
}

} // namespace pelmira
