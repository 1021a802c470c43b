#include "platform/image/Image.h"

#include <QByteArray>
#include <QLoggingCategory>

#include <cstdint>
#include <cstdlib>
#include <variant>

namespace {

// Small, so that a lie about the size shows.
constexpr pelmira::ImageLimits limits{1 << 18, 1 << 20};

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const auto result = pelmira::imageFromData(
        QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)), limits);
    const QImage* image = std::get_if<QImage>(&result);
    if (!image)
        return 0;
    if (image->isNull() || !limits.allow(image->size()) ||
        image->format() != QImage::Format_ARGB32_Premultiplied)
        std::abort();
    return 0;
}
