#include "background_editor/filters/GaussianBlur.h"

#include "background_editor/filters/NarrowBlur.h"
#include "background_editor/filters/WideBlur.h"

#include <algorithm>
#include <cstring>

namespace pelmira {

void gaussianBlur(const SampleRows<const std::uint8_t>& source,
                  const SampleRows<std::uint8_t>& target, double deviation, Beyond beyond)
{
    if (source.width == 0 || source.height == 0)
        return;
    if (deviation >= narrowestWideBlur) {
        wideBlur(source, target, std::min(deviation, greatestDeviation), beyond);
    } else if (deviation > 0.0) {
        narrowBlur(source, target, deviation, beyond);
    } else {
        for (std::size_t y = 0; y < source.height; ++y)
            std::memcpy(target.row(y), source.row(y), source.width * source.channels);
    }
}

} // namespace pelmira
