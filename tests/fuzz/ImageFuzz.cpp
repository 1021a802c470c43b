#include "Fuzz.h"
#include "platform/image/Image.h"

#include <variant>

void pelmira::fuzz(const QByteArray& input)
{
    constexpr ImageLimits limits{1 << 18, 1 << 20}; // small, so that a lie about the size shows
    const auto result = imageFromData(input, limits);
    if (const QImage* image = std::get_if<QImage>(&result)) {
        must(!image->isNull() && limits.allow(image->size()));
        must(image->format() == QImage::Format_ARGB32_Premultiplied);
    }
}
