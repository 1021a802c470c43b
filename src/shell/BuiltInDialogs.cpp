#include "shell/BuiltInDialogs.h"

#include "platform/Log.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

#include <utility>

namespace pelmira {

BuiltInDialogs::BuiltInDialogs(QQmlEngine& engine, QQuickWindow& window)
    : _engine(engine), _window(window)
{
}

BuiltInDialogs::~BuiltInDialogs() = default;

void BuiltInDialogs::chooseImage(FileDialogs::Completion completion)
{
    open("openImage", std::move(completion));
}

void BuiltInDialogs::chooseFolder(FileDialogs::Completion completion)
{
    open("openFolder", std::move(completion));
}

void BuiltInDialogs::chosen(const QUrl& url)
{
    const auto completion = std::exchange(_completion, nullptr);
    if (completion && url.isLocalFile())
        completion(url.toLocalFile());
}

void BuiltInDialogs::open(const char* dialog, FileDialogs::Completion completion)
{
    if (!_item) {
        QQmlComponent component(
            &_engine,
            QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/BuiltInDialogs.qml")));
        QObject* root = component.createWithInitialProperties(
            {{QStringLiteral("owner"), QVariant::fromValue<QObject*>(this)}});
        _item.reset(qobject_cast<QQuickItem*>(root));
        if (!_item) {
            logLine("%s", qPrintable(component.errorString()));
            return;
        }
        _item->setParentItem(_window.contentItem());
    }
    _completion = std::move(completion);
    QMetaObject::invokeMethod(_item.get(), dialog);
}

} // namespace pelmira
