#pragma once

#include "settings/SettingsCellEntry.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace pelmira {

/// A section of the settings.
struct SettingsCellGroup {
    std::optional<QString> headerTitle;
    std::optional<QString> footerTitle;
    std::vector<std::shared_ptr<const SettingsCellEntry>> entries;
};

} // namespace pelmira
