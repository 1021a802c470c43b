#include "Fuzz.h"
#include "platform/storage/PropertyList.h"

void pelmira::fuzz(const QByteArray& input)
{
    const auto list = PropertyList::fromBytes(input);
    if (!list)
        return;
    for (const char* key : {"originalDataLen", "compressedDataLen", "compressedData"}) {
        const auto data = list->data(key);
        must(!data || !list->integer(key));          // one value can't be both
        must(!data || data->size() <= input.size()); // no file holds more than it is long
    }
}
