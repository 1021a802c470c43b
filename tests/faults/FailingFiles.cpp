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

#define OPEN(NAME)                                                                                 \
    int NAME(const char* path, int flags, ...)                                                     \
    {                                                                                              \
        static auto* const original = next(&NAME, #NAME);                                          \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;              \
        va_end(rest);                                                                              \
        return fails("open", path) ? -1 : original(path, flags, mode);                             \
    }
OPEN(open)
OPEN(open64)

#define OPENAT(NAME)                                                                               \
    int NAME(int folder, const char* path, int flags, ...)                                         \
    {                                                                                              \
        static auto* const original = next(&NAME, #NAME);                                          \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;              \
        va_end(rest);                                                                              \
        return failsAt("open", folder, path) ? -1 : original(folder, path, flags, mode);           \
    }
OPENAT(openat)
OPENAT(openat64)

ssize_t read(int descriptor, void* bytes, size_t count)
{
    static auto* const original = next(&read, "read");
    return fails("read", descriptor) ? -1 : original(descriptor, bytes, count);
}

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

int fsync(int descriptor)
{
    static auto* const original = next(&fsync, "fsync");
    return fails("fsync", descriptor) ? -1 : original(descriptor);
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

int rename(const char* from, const char* to) noexcept
{
    static auto* const original = next(&rename, "rename");
    return fails("rename", to) ? -1 : original(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept
{
    static auto* const original = next(&renameat2, "renameat2");
    return failsAt("rename", toFolder, to) ? -1 : original(fromFolder, from, toFolder, to, flags);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    static auto* const original = next(&mkdir, "mkdir");
    return fails("mkdir", path) ? -1 : original(path, mode);
}

int unlink(const char* path) noexcept
{
    static auto* const original = next(&unlink, "unlink");
    return fails("unlink", path) ? -1 : original(path);
}

int unlinkat(int folder, const char* path, int flags) noexcept
{
    static auto* const original = next(&unlinkat, "unlinkat");
    return failsAt("unlink", folder, path) ? -1 : original(folder, path, flags);
}

int remove(const char* path) noexcept
{
    static auto* const original = next(&remove, "remove");
    return fails("unlink", path) ? -1 : original(path);
}
}
