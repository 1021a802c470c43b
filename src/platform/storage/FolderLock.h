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

    /// False if another process holds it, or nothing can be written there. Where the file system
    /// knows no locks, everyone holds it.
    bool take(const QString& folder);

    static constexpr const char* fileName = "lock";

private:
    int _descriptor = -1;
};

} // namespace pelmira
