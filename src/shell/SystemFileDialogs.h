#pragma once

#include "intake/FileDialogs.h"
#include "platform/portal/FileChooser.h"
#include "shell/BuiltInDialogs.h"

#include <QQuickWindow>

#include <functional>
#include <optional>

namespace pelmira {

/// The desktop's file dialogs, or the toolkit's where it has none. Not owned: the engine and the
/// window, which outlive this.
class SystemFileDialogs {
public:
    SystemFileDialogs(QQmlEngine& engine, QQuickWindow& window);

    void chooseImage(FileDialogs::Completion completion);
    void chooseFolder(FileDialogs::Completion completion);

private:
    FileChooser& chooser();

    QQuickWindow& _window;
    std::optional<FileChooser> _chooser; ///< made at first use: it goes to the session's bus
    BuiltInDialogs _builtIn;
};

} // namespace pelmira
