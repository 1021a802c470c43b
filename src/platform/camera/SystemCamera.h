#pragma once

#include "platform/camera/Camera.h"

#include <QString>

#include <memory>

namespace pelmira {

/// Where the plugin that finds cameras lies beside this program.
QString cameraPluginPath();

/// The cameras of this system. Making it loads the plugin and asks for the devices, which may take
/// some tenths of a second. Without the plugin none is found.
std::unique_ptr<Camera> makeSystemCamera(const QString& pluginPath = cameraPluginPath());

} // namespace pelmira
