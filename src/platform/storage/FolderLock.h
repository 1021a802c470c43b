#pragma once

#include <QString>

namespace pelmira {

/// Keeps a folder to one process at a time, by a lock on the file "lock" in it. The system lets go
/// of it with the process, however that ends, so nothing stale is ever left. The same process may
/// take it again; it then ends with the first of its holders.
class FolderLock {
public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    enum class Outcome {
        Taken, ///< also where the file system knows no locks: there everyone holds it
        HeldElsewhere,
        Unwritable, ///< there is no lock to be made in the folder
    };

    Outcome take(const QString& folder);

    static constexpr const char* fileName = "lock";

private:
    int _descriptor = -1;
};

} // namespace pelmira
