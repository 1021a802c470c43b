#include "platform/quick/PlatformTypes.h"

#include "platform/quick/GLKView.h"
#include "platform/quick/IconView.h"
#include "platform/quick/ImageView.h"
#include "platform/quick/Localized.h"
#include "platform/quick/Pane.h"
#include "platform/quick/PlateView.h"
#include "platform/quick/TouchArea.h"
#include "platform/quick/ViewfinderView.h"

#include <qqml.h>

namespace pelmira {

void registerPlatformTypes()
{
    constexpr const char* module = "Pelmira";
    qmlRegisterType<GLKView>(module, 1, 0, "GLKView");
    qmlRegisterType<IconView>(module, 1, 0, "IconView");
    qmlRegisterType<ImageView>(module, 1, 0, "ImageView");
    qmlRegisterType<Pane>(module, 1, 0, "Pane");
    qmlRegisterType<PlateView>(module, 1, 0, "PlateView");
    qmlRegisterType<TouchArea>(module, 1, 0, "TouchArea");
    qmlRegisterType<ViewfinderView>(module, 1, 0, "ViewfinderView");
    Pane::installAccessibility();
    qmlRegisterSingletonType<Localized>(
        module, 1, 0, "Localized",
        [](QQmlEngine*, QJSEngine*) -> QObject* { return new Localized; });
}

} // namespace pelmira
