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

FolderLock::Outcome FolderLock::take(const QString& folder)
{
    if (_descriptor >= 0)
        return Outcome::Taken;
    const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + QLatin1String(fileName));
    const int descriptor = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return Outcome::Unwritable;
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    if (::fcntl(descriptor, F_SETLK, &whole) != 0 && (errno == EACCES || errno == EAGAIN)) {
        ::close(descriptor);
        return Outcome::HeldElsewhere;
    }
    _descriptor = descriptor;
    return Outcome::Taken;
}

} // namespace pelmira
