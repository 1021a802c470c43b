#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace pelmira::test {

/// A folder that goes with the test.
class TemporaryFolder {
public:
    QString path() const { return _folder.path(); }
    QString path(const char* name) const { return _folder.filePath(QString::fromUtf8(name)); }

    QString write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("A test file can't be written");
        return file.fileName();
    }

    static void setTime(const QString& path, const QDateTime& time)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadWrite) ||
            !file.setFileTime(time, QFileDevice::FileModificationTime))
            qFatal("A test file's time can't be set");
    }
    /// Written so many seconds ago.
    void writeOld(const char* name, qint64 age) const
    {
        setTime(write(name, "half"), QDateTime::currentDateTime().addSecs(-age));
    }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A folder that nobody can make, not even root: it would lie in a regular file.
    QString impossibleFolder() const { return write("file", "x") + QStringLiteral("/folder"); }

    /// All names in the folder, hidden ones too.
    QStringList names() const
    {
        return QDir(_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir _folder;
};

} // namespace pelmira::test
