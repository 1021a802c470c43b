#include "platform/quick/PlatformTypes.h"

#include "platform/quick/IconView.h"
#include "platform/quick/ImageView.h"

#include <qqml.h>

namespace pelmira {

void registerPlatformTypes()
{
    constexpr const char* module = "Pelmira";
    qmlRegisterType<IconView>(module, 1, 0, "IconView");
    qmlRegisterType<ImageView>(module, 1, 0, "ImageView");
}

} // namespace pelmira
