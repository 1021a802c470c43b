#include "shell/SystemFileDialogs.h"

#include "platform/text/LocalizedStrings.h"

#include <utility>

namespace pelmira {
namespace {

/// Gives what the desktop's dialog gave, or asks the other one.
FileChooser::Completion orElse(FileDialogs::Completion completion,
                               std::function<void(FileDialogs::Completion)> other)
{
    return [completion = std::move(completion), other = std::move(other)](PortalOutcome outcome,
                                                                          const QString& path) {
        if (outcome == PortalOutcome::Unavailable)
            other(completion);
        else if (outcome == PortalOutcome::Done && !path.isEmpty())
            completion(path);
    };
}

} // namespace

SystemFileDialogs::SystemFileDialogs(QQmlEngine& engine, QQuickWindow& window)
    : _window(window), _builtIn(engine, window)
{
}

FileChooser& SystemFileDialogs::chooser()
{
    return _chooser ? *_chooser : _chooser.emplace();
}

void SystemFileDialogs::chooseImage(FileDialogs::Completion completion)
{
    chooser().chooseFile(&_window, localized("filedialog.image.title"),
                         {localized("filedialog.image.filter"), {QStringLiteral("image/*")}},
                         orElse(std::move(completion), [this](FileDialogs::Completion instead) {
                             _builtIn.chooseImage(std::move(instead));
                         }));
}

void SystemFileDialogs::chooseFolder(FileDialogs::Completion completion)
{
    chooser().chooseFolder(&_window, localized("filedialog.folder.title"),
                           orElse(std::move(completion), [this](FileDialogs::Completion instead) {
                               _builtIn.chooseFolder(std::move(instead));
                           }));
}

} // namespace pelmira
