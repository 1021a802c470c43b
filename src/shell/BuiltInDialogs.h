#pragma once

#include "intake/FileDialogs.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

class QQuickItem;
class QQuickWindow;

namespace pelmira {

/// File dialogs of the toolkit, for a desktop that has none of its own to offer. They are loaded
/// when one is first asked for. Not owned: the engine and the window, which outlive this.
class BuiltInDialogs final : public QObject {
    Q_OBJECT

public:
    BuiltInDialogs(QQmlEngine& engine, QQuickWindow& window);
    ~BuiltInDialogs() override;

    void chooseImage(FileDialogs::Completion completion);
    void chooseFolder(FileDialogs::Completion completion);

    /// For the layout file.
    Q_INVOKABLE void chosen(const QUrl& url);

private:
    void open(const char* dialog, FileDialogs::Completion completion);

    QQmlEngine& _engine;
    QQuickWindow& _window;
    std::unique_ptr<QQuickItem> _item;
    FileDialogs::Completion _completion;
};

} // namespace pelmira
