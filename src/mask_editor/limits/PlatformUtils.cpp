#include "mask_editor/limits/PlatformUtils.h"

#include "platform/base/Device.h"

#include <algorithm>
#include <atomic>
#include <cmath>

namespace pelmira {
namespace {

std::atomic<int> ramMB = 0;
std::atomic<bool> isRamUnread = true;

constexpr double largestSystemBars = 100.0; // points

} // namespace

int PlatformUtils::deviceRamMB()
{
    if (isRamUnread) {
        ramMB = static_cast<int>(physicalMemory() >> 20);
        isRamUnread = false;
    }
    return ramMB;
}

double PlatformUtils::maxImageDimForDevice()
{
    return deviceRamMB() < 1537 ? 2048.0 : 4096.0;
}

bool PlatformUtils::isRunningFullScreen(const std::optional<QSizeF>& rootViewSize,
                                        const QSizeF& screenSize)
{
    if (!rootViewSize)
        return false;
    const auto [viewMin, viewMax] = std::minmax({rootViewSize->width(), rootViewSize->height()});
    const auto [screenMin, screenMax] = std::minmax({screenSize.width(), screenSize.height()});
    return std::abs(viewMin - screenMin) <= largestSystemBars &&
           std::abs(viewMax - screenMax) <= largestSystemBars;
}

void PlatformUtils::overrideDeviceRamMB(std::optional<int> megabytes)
{
    ramMB = megabytes.value_or(0);
    isRamUnread = !megabytes;
}

} // namespace pelmira
