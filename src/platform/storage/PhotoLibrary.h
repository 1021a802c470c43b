#pragma once

#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <variant>

namespace pelmira {

enum class SaveProblem { NoPermission, NoSpace, ReadOnly, Failed };

/// The folder "Pelmira" among the user's pictures, made when the first one is saved. Safe from any
/// thread; several may save at once.
class PhotoLibrary {
public:
    /// In the system's folder for pictures.
    PhotoLibrary();
    explicit PhotoLibrary(const QString& picturesFolder);
    /// In exactly this folder.
    static PhotoLibrary inFolder(const QString& folder);

    const QString& folder() const { return _folder; }

    /// Writes an encoded picture to a new file, named for the given moment and with the given
    /// suffix, and gives its path. No file that stands is touched, and on failure none is left.
    /// Returns when the picture is on the medium.
    std::variant<QString, SaveProblem>
    save(QByteArrayView bytes, const QString& suffix,
         const QDateTime& moment = QDateTime::currentDateTime()) const;

    /// One line for the user, which names the folder.
    QString messageForProblem(SaveProblem problem) const;

private:
    QString _folder;
};

} // namespace pelmira
