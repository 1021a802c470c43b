#include "shell/BuiltInDialogs.h"

#include "controls/StyleUtil.h"
#include "intake/PhotoPermissionsHelper.h"
#include "platform/base/Log.h"
#include "platform/image/PhotoFormats.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <QGuiApplication>
#include <QPalette>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>

#include <utility>

namespace pelmira {
namespace {

QString imageFilter()
{
    QStringList patterns;
    for (const QString& suffix : photoSuffixes())
        patterns << QStringLiteral("*.") + suffix << QStringLiteral("*.") + suffix.toUpper();
    return localized("filedialog.image.filter") + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

// The dialogs are the only things that go by the application's palette. Their parts take light
// colours for granted, and show what is chosen on a pale ground.
QPalette dialogPalette()
{
    QPalette palette(QColor(0xe0, 0xe2, 0xe6));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, StyleUtil::buttonBlue());
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

} // namespace

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
        QGuiApplication::setPalette(dialogPalette());
        QQmlComponent component(&_engine, layoutUrl("BuiltInDialogs"));
        // A dialog looks for its window once, when it is made.
        QObject* root = component.createWithInitialProperties(
            {{QStringLiteral("owner"), QVariant::fromValue<QObject*>(this)},
             {QStringLiteral("startFolder"),
              QUrl::fromLocalFile(PhotoPermissionsHelper::photosFolder())},
             {QStringLiteral("imageFilter"), imageFilter()},
             {QStringLiteral("parent"), QVariant::fromValue(_window.contentItem())}});
        _item.reset(qobject_cast<QQuickItem*>(root));
        if (!_item) {
            logLine("%s", qPrintable(component.errorString()));
            return;
        }
    }
    _completion = std::move(completion);
    QMetaObject::invokeMethod(_item.get(), dialog);
}

} // namespace pelmira
