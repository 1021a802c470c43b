#pragma once

#include <QString>

namespace pelmira {

/// Where the crop tool's own icons lie.
class CropperBundleHelper {
public:
    /// A folder of compiled-in files.
    static QString bundle() { return QStringLiteral(":/crop"); }
};

} // namespace pelmira
