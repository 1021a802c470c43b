#include "platform/portal/MemoryMonitor.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace pelmira {
namespace {

// The portal's levels are low (50), medium (100) and critical (255). Low asks only for what nobody
// needs, and nothing of ours is that.
constexpr uchar mediumLevel = 100;
// For a tenth of two seconds nothing could run for want of memory: what is given back then is worth
// its loss. A user's triggers count in whole windows of two seconds.
constexpr std::string_view trigger = "full 200000 2000000";

} // namespace

MemoryMonitor::MemoryMonitor(std::function<void()> warning, QDBusConnection bus)
    : _warning(std::move(warning)), _bus(std::move(bus))
{
    // Of any sender: naming the portal would start it.
    if (_bus.isConnected())
        _bus.connect({}, QStringLiteral("/org/freedesktop/portal/desktop"),
                     QStringLiteral("org.freedesktop.portal.MemoryMonitor"),
                     QStringLiteral("LowMemoryWarning"), this, SLOT(lowMemoryWarning(uchar)));
    watchPressure();
}

MemoryMonitor::~MemoryMonitor()
{
    _notifier.reset();
    if (_pressure >= 0)
        ::close(_pressure);
}

void MemoryMonitor::lowMemoryWarning(uchar level)
{
    if (level >= mediumLevel)
        _warning();
}

// Older kernels, and containers, don't let everyone set a trigger.
void MemoryMonitor::watchPressure()
{
    _pressure = ::open("/proc/pressure/memory", O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (_pressure < 0 || ::write(_pressure, trigger.data(), trigger.size() + 1) < 0)
        return;
    _notifier = std::make_unique<QSocketNotifier>(_pressure, QSocketNotifier::Exception);
    connect(_notifier.get(), &QSocketNotifier::activated, this, [this] { _warning(); });
}

} // namespace pelmira
