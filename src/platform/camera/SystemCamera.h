#pragma once

#include "platform/camera/Camera.h"

#include <memory>

namespace pelmira {

/// The cameras of this system. Making it asks for the devices, which may take some tenths of a
/// second. A program built without Qt Multimedia finds none.
std::unique_ptr<Camera> makeSystemCamera();

} // namespace pelmira
