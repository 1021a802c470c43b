#pragma once

#include <QByteArrayView>
#include <QString>

#include <system_error>

namespace pelmira {

enum class IfExists {
    Replace,
    Refuse, ///< the answer is std::errc::file_exists, and the file that stands is untouched
};

enum class Durability {
    OutlivesProcess, ///< no wait for the medium; a power cut may bring the file before back
    OutlivesPowerCut,
};

/// Writes a whole file, so that whoever looks at the path sees either all of it or what stood there
/// before. On failure nothing is left behind. The folder must exist. The permissions are what the
/// process's mask leaves of the given ones. Safe from any thread.
std::error_code writeFileAtomically(const QString& path, QByteArrayView bytes, IfExists ifExists,
                                    Durability durability, unsigned permissions = 0666);

/// Removes what processes killed while they wrote have left in the folder, older than a day: a
/// younger one may be being written. Only what is named as such a file is.
void removeLeftoversOfWriting(const QString& folder);

} // namespace pelmira
