#include "platform/base/Device.h"

#include <unistd.h>

namespace pelmira {

std::uint64_t physicalMemory()
{
    return static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES)) *
           static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

} // namespace pelmira
