#include "shell/SingleInstance.h"

#include "platform/base/Log.h"

#include <QDeadlineTimer>

#include <chrono>
#include <thread>

namespace pelmira {
namespace {

constexpr std::chrono::seconds patience{10};
constexpr std::chrono::milliseconds betweenTries{50};

} // namespace

SingleInstance::Role SingleInstance::start(const QStringList& uris)
{
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (_service.claim() != ApplicationService::Claim::Taken)
            return Role::Running;
        if (_service.handOver(uris))
            return Role::HandedOver;
        if (deadline.hasExpired()) {
            logLine("the running application doesn't answer");
            return Role::Running;
        }
        std::this_thread::sleep_for(betweenTries);
    }
}

} // namespace pelmira
