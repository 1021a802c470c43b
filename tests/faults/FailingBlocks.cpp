#include "faults/Countdown.h"
#include "faults/FailingCalls.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <new>

// Where these functions take the allocator's place: the C library's own names for it need no
// look-up, which would ask for memory itself.
extern "C" {
void* __libc_malloc(size_t);
void* __libc_calloc(size_t, size_t);
void* __libc_realloc(void*, size_t);
void* __libc_memalign(size_t, size_t);
}

namespace {

std::size_t least = 0;

/// Whose calls count, by the library that an address lies in. The program itself is told by its
/// name having no ".so".
bool isCounted(const void* caller, char* where, std::size_t size)
{
    Dl_info info{};
    if (!::dladdr(caller, &info) || !info.dli_fname)
        return false;
    const char* slash = std::strrchr(info.dli_fname, '/');
    const char* name = slash ? slash + 1 : info.dli_fname;
    std::snprintf(where, size, "%s+%zx", name,
                  static_cast<std::size_t>(static_cast<const char*>(caller) -
                                           static_cast<const char*>(info.dli_fbase)));
    if (!std::strstr(name, ".so"))
        return true;
    for (const char* known : {"libQt6", "libq", "libjpeg", "libpng", "libz.", "libdeflate"})
        if (std::strncmp(name, known, std::strlen(known)) == 0)
            return true;
    return false;
}

bool fails(const char* what, std::size_t bytes, const void* caller)
{
    if (bytes < least || !isCounted(FailingKind::Blocks))
        return false;
    char where[200];
    if (!isCounted(caller, where, sizeof where))
        return false;
    char call[80];
    std::snprintf(call, sizeof call, "%s of %zu", what, bytes);
    return strikes(call, where);
}

void* nothing()
{
    errno = ENOMEM;
    return nullptr;
}

void* orThrow(void* block)
{
    return block ? block : throw std::bad_alloc();
}

} // namespace

#define CALLER __builtin_return_address(0)

extern "C" {

void failing_blocks_begin(std::size_t leastBytes, int nth, bool andAllAfter)
{
    least = leastBytes;
    beginCounting(FailingKind::Blocks, nth, andAllAfter);
}

// Takes the place of the C library's function; what fails gives nothing.
#define INSTEAD(NAME, BYTES, PARAMETERS, MADE)                                                     \
    void* NAME PARAMETERS                                                                          \
    {                                                                                              \
        return fails(#NAME, BYTES, CALLER) ? nothing() : MADE;                                     \
    }

INSTEAD(malloc, size, (size_t size), __libc_malloc(size))
INSTEAD(calloc, count* size, (size_t count, size_t size), __libc_calloc(count, size))
INSTEAD(realloc, size, (void* block, size_t size), __libc_realloc(block, size))
INSTEAD(aligned_alloc, size, (size_t alignment, size_t size), __libc_memalign(alignment, size))

int posix_memalign(void** block, size_t alignment, size_t size)
{
    void* made = fails("posix_memalign", size, CALLER) ? nullptr : __libc_memalign(alignment, size);
    if (!made)
        return ENOMEM;
    *block = made;
    return 0;
}
}

// The language's own, which throws unless it is asked not to.
#define INSTEAD_OF_NEW(NAME, PARAMETERS, RESULT)                                                   \
    void* operator NAME PARAMETERS                                                                 \
    {                                                                                              \
        return RESULT(fails("new", size, CALLER) ? nullptr : __libc_malloc(size));                 \
    }

INSTEAD_OF_NEW(new, (std::size_t size), orThrow)
INSTEAD_OF_NEW(new[], (std::size_t size), orThrow)
INSTEAD_OF_NEW(new, (std::size_t size, const std::nothrow_t&) noexcept, )
INSTEAD_OF_NEW(new[], (std::size_t size, const std::nothrow_t&) noexcept, )
