#include "platform/storage/PropertyList.h"

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const auto list = pelmira::PropertyList::fromBytes(
        QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)));
    if (!list)
        return 0;
    for (const char* key : {"originalDataLen", "compressedDataLen", "compressedData"}) {
        if (list->integer(key) && list->data(key))
            std::abort(); // one value can't be both
        if (const auto data = list->data(key); data && data->size() > static_cast<qsizetype>(count))
            std::abort(); // no file holds more than it is long
    }
    return 0;
}
