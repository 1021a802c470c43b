#include "platform/image/ExifOrientation.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const int orientation = pelmira::exifOrientation(
        QByteArrayView(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)));
    if (orientation < 1 || orientation > 8)
        std::abort();
    return 0;
}
