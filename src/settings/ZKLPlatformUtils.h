#pragma once

#include <QString>

namespace pelmira {

/// What a support mail tells of the device.
class ZKLPlatformUtils {
public:
    /// A model that a person would recognise; the processor's kind where the device names none.
    static QString deviceModelName();
    /// The space that is free for the user's files, with its unit.
    static QString freeDiskspaceAsString();
};

} // namespace pelmira
