#pragma once

#include "platform/portal/ApplicationService.h"

#include <QStringList>

namespace pelmira {

/// Sees to it that a user has one process: a second start hands its files to the running one and
/// ends. One that is just quitting, its last picture still on its way to disk, is waited for.
class SingleInstance {
public:
    enum class Role {
        Running,    ///< this process is the one, or can't know better
        HandedOver, ///< another one has the files; nothing is left to do
    };

    explicit SingleInstance(ApplicationService& service) : _service(service) {}

    /// The files' addresses are absolute.
    Role start(const QStringList& uris);

private:
    ApplicationService& _service;
};

} // namespace pelmira
