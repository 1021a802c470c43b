#pragma once

#include "platform/portal/SessionBus.h"

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace pelmira {

/// Tells when the system is so short of memory that everyone should give back what can be done
/// without: by the memory-monitor portal, which also reaches into a sandbox, and by the kernel's
/// own account of stalls, which needs no other program
/// (https://docs.kernel.org/accounting/psi.html). Often both tell of one shortage.
class MemoryMonitor final : public QObject {
    Q_OBJECT

public:
    explicit MemoryMonitor(std::function<void()> warning, QDBusConnection bus = sessionBus());
    ~MemoryMonitor() override;

private Q_SLOTS:
    void lowMemoryWarning(uchar level);

private:
    void watchPressure();

    const std::function<void()> _warning;
    QDBusConnection _bus;
    int _pressure = -1;
    std::unique_ptr<QSocketNotifier> _notifier;
};

} // namespace pelmira
