#pragma once

#include <QString>

#include <functional>

namespace pelmira {

/// The system's ways to ask for a file. The completion gets a path, and isn't called if the user
/// gives none.
struct FileDialogs {
    using Completion = std::function<void(const QString& path)>;

    std::function<void(Completion)> chooseImage;
    std::function<void(Completion)> chooseFolder;
};

} // namespace pelmira
