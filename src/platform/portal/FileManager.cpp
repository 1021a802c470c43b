#include "platform/portal/FileManager.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace pelmira {

FileManager::FileManager(QDBusConnection bus) : _bus(std::move(bus)), _openURI(_bus)
{
}

void FileManager::showFile(const QWindow* parent, const QString& path)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, path, window = QPointer<const QWindow>(parent)] {
                watcher->deleteLater();
                if (!watcher->isError())
                    return;
                _openURI.openDirectory(window, path, [path](PortalOutcome outcome) {
                    if (outcome == PortalOutcome::Unavailable)
                        OpenURI::openUri(QUrl::fromLocalFile(QFileInfo(path).path()));
                });
            });
}

} // namespace pelmira
