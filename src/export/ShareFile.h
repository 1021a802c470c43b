#pragma once

#include <QByteArrayView>
#include <QString>

namespace pelmira {

/// The files that are handed to other applications: one for flat pictures and one for transparent
/// ones, each overwritten by the next share. They lie in a folder of this user's within the
/// temporary directory: that one is everybody's, and a fixed name there could be taken by another
/// user's file or link, and read by all.
class ShareFile {
public:
    /// Within the system's temporary directory.
    ShareFile();
    explicit ShareFile(const QString& temporaryFolder);

    QString shareImagePathJPG() const { return _folder + QStringLiteral("/image.jpg"); }
    QString shareImagePathPNG() const { return _folder + QStringLiteral("/image.png"); }

    /// Takes away what the path holds, and writes the picture there as a whole. False, and nothing
    /// there, if that can't be, or if the folder isn't this user's alone. Safe from any thread.
    bool write(const QString& path, QByteArrayView data) const;

private:
    bool makeFolder() const;

    QString _folder;
};

} // namespace pelmira
