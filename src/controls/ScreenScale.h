#pragma once

#include <QGuiApplication>

#include <algorithm>

namespace pelmira {

/// Pixels per point for images that the controls make: those of the sharpest screen, so that a
/// window moved there stays crisp. 1 without a display.
inline double screenScale()
{
    return qGuiApp ? std::max(1.0, qGuiApp->devicePixelRatio()) : 1.0;
}

} // namespace pelmira
