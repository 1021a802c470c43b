#include "faults/FailingCalls.h"

#include "faults/Countdown.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

constexpr int mostPath = 4096;

char watched[mostPath];
int failure = 0;

bool isWatched(const char* path)
{
    const std::size_t length = std::strlen(watched);
    return path && std::strncmp(path, watched, length) == 0 && path[length] == '/';
}

/// Whether this call is to fail; errno then says why.
bool fails(const char* what, const char* path)
{
    if (!isCounted(FailingKind::Files) || !isWatched(path) || !strikes(what, path))
        return false;
    errno = failure;
    return true;
}

bool fails(const char* what, int descriptor)
{
    if (!isCounted(FailingKind::Files))
        return false;
    char link[32];
    char path[mostPath] = {};
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const int before = errno;
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    errno = before;
    return length > 0 && fails(what, path);
}

bool failsAt(const char* what, int folder, const char* path)
{
    return folder == AT_FDCWD || !path || *path == '/' ? fails(what, path) : fails(what, folder);
}

} // namespace

extern "C" {

void failing_files_begin(const char* folder, int nth, int error, bool andAllAfter)
{
    std::snprintf(watched, sizeof watched, "%s", folder);
    failure = error;
    beginCounting(FailingKind::Files, nth, andAllAfter);
}

// Takes the place of the system's function; what fails does nothing.
#define INSTEAD(RESULT, NAME, IS_TO_FAIL, PARAMETERS, ARGUMENTS)                                   \
    RESULT NAME PARAMETERS                                                                         \
    {                                                                                              \
        static auto* const original = next(&NAME, #NAME);                                          \
        return IS_TO_FAIL ? -1 : original ARGUMENTS;                                               \
    }
// The same where the mode of what is made may follow.
#define INSTEAD_OF_OPEN(NAME, IS_TO_FAIL, PARAMETERS, ARGUMENTS)                                   \
    int NAME PARAMETERS                                                                            \
    {                                                                                              \
        static auto* const original = next(&NAME, #NAME);                                          \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;              \
        va_end(rest);                                                                              \
        return IS_TO_FAIL ? -1 : original ARGUMENTS;                                               \
    }
INSTEAD_OF_OPEN(open, fails("open", path), (const char* path, int flags, ...), (path, flags, mode))
INSTEAD_OF_OPEN(open64, fails("open", path), (const char* path, int flags, ...),
                (path, flags, mode))
INSTEAD_OF_OPEN(openat, failsAt("open", folder, path),
                (int folder, const char* path, int flags, ...), (folder, path, flags, mode))
INSTEAD_OF_OPEN(openat64, failsAt("open", folder, path),
                (int folder, const char* path, int flags, ...), (folder, path, flags, mode))

INSTEAD(ssize_t, read, fails("read", descriptor), (int descriptor, void* bytes, size_t count),
        (descriptor, bytes, count))
INSTEAD(int, fsync, fails("fsync", descriptor), (int descriptor), (descriptor))
INSTEAD(int, rename, fails("rename", to), (const char* from, const char* to) noexcept, (from, to))
INSTEAD(int, renameat2, failsAt("rename", toFolder, to),
        (int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept,
        (fromFolder, from, toFolder, to, flags))
INSTEAD(int, mkdir, fails("mkdir", path), (const char* path, mode_t mode) noexcept, (path, mode))
INSTEAD(int, unlink, fails("unlink", path), (const char* path) noexcept, (path))
INSTEAD(int, unlinkat, failsAt("unlink", folder, path),
        (int folder, const char* path, int flags) noexcept, (folder, path, flags))
INSTEAD(int, remove, fails("unlink", path), (const char* path) noexcept, (path))

// As much as there is room for, and then no more.
ssize_t write(int descriptor, const void* bytes, size_t count)
{
    static auto* const original = next(&write, "write");
    if (!fails("write", descriptor))
        return original(descriptor, bytes, count);
    const int error = errno;
    (void)original(descriptor, bytes, count / 2);
    errno = error;
    return -1;
}

// The descriptor is gone in any case.
int close(int descriptor)
{
    static auto* const original = next(&close, "close");
    const bool isToFail = fails("close", descriptor);
    const int error = errno;
    const int result = original(descriptor);
    if (!isToFail)
        return result;
    errno = error;
    return -1;
}
}
