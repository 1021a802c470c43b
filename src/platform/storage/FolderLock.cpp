#include "platform/storage/FolderLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace pelmira {

FolderLock::~FolderLock()
{
    if (_descriptor >= 0)
        ::close(_descriptor);
}

bool FolderLock::take(const QString& folder)
{
    if (_descriptor >= 0)
        return true;
    const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + QLatin1String(fileName));
    const int descriptor = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return false;
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    if (::fcntl(descriptor, F_SETLK, &whole) != 0 && (errno == EACCES || errno == EAGAIN)) {
        ::close(descriptor);
        return false;
    }
    _descriptor = descriptor;
    return true;
}

} // namespace pelmira
