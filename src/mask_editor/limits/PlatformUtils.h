#pragma once

#include <QSizeF>

#include <optional>

namespace pelmira {

/// The facts about the device on which the editor's memory budget rests. Safe from any thread.
class PlatformUtils {
public:
    /// Physical memory in units of 2^20 bytes; read once in the life of the process.
    static int deviceRamMB();

    /// The longest side, in pixels, of an image that is worked on.
    static double maxImageDimForDevice();

    /// Whether the window, given by its root view's size, fills the screen, in either orientation
    /// and but for the system's bars. Both sizes are in points; without a window the answer is no.
    static bool isRunningFullScreen(const std::optional<QSizeF>& rootViewSize,
                                    const QSizeF& screenSize);

    /// For tests: from now on the device has this much memory; nothing makes the next use read
    /// anew.
    static void overrideDeviceRamMB(std::optional<int> megabytes);
};

} // namespace pelmira
