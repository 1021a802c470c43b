#include "platform/storage/AtomicFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace pelmira {
namespace {

const QString temporaryName = QStringLiteral(".pelmira-%1.tmp");
constexpr int daysForWriting = 1;

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

class Descriptor {
public:
    explicit Descriptor(int value) : _value(value) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return _value; }
    /// Some file systems report a full disk only here.
    bool close()
    {
        const int value = _value;
        _value = -1;
        return value < 0 || ::close(value) == 0;
    }

private:
    int _value;
};

bool writeAll(int descriptor, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

/// Hidden, so that no gallery lists it, and in the same folder, so that it can be renamed.
QByteArray temporaryNameBeside(const QString& path)
{
    const QFileInfo info(path);
    const quint64 random = QRandomGenerator::global()->generate64();
    return QFile::encodeName(info.path() + u'/' + temporaryName.arg(QString::number(random, 36)));
}

bool renameWithoutReplacing(const char* from, const char* to)
{
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system that can't: take the name with an empty file, then replace that.
    Descriptor placeholder(::open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (placeholder.get() < 0)
        return false;
    if (::rename(from, to) == 0)
        return true;
    const int error = errno;
    ::unlink(to);
    errno = error;
    return false;
}

void flushFolderOf(const QString& path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    const Descriptor descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.get() >= 0)
        ::fsync(descriptor.get());
}

} // namespace

std::error_code writeFileAtomically(const QString& path, QByteArrayView bytes, IfExists ifExists,
                                    Durability durability, unsigned permissions)
{
    const bool flush = durability == Durability::OutlivesPowerCut;
    const QByteArray target = QFile::encodeName(path);
    const QByteArray temporary = temporaryNameBeside(path);
    Descriptor file(
        ::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions));
    if (file.get() < 0)
        return lastError();

    const auto moveIntoPlace = [&] {
        return ifExists == IfExists::Replace
                   ? ::rename(temporary.constData(), target.constData()) == 0
                   : renameWithoutReplacing(temporary.constData(), target.constData());
    };
    const bool done = writeAll(file.get(), bytes) && (!flush || ::fsync(file.get()) == 0) &&
                      file.close() && moveIntoPlace();
    if (!done) {
        const std::error_code error = lastError();
        ::unlink(temporary.constData());
        return error;
    }
    if (flush)
        flushFolderOf(path);
    return {};
}

void removeLeftoversOfWriting(const QString& folder)
{
    const QDateTime recently = QDateTime::currentDateTime().addDays(-daysForWriting);
    const auto files = QDir(folder).entryInfoList({temporaryName.arg(QLatin1Char('*'))},
                                                  QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : files)
        if (file.lastModified() < recently)
            QFile::remove(file.filePath());
}

} // namespace pelmira
