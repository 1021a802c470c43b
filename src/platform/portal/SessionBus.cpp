#include "platform/portal/SessionBus.h"

#include <QFile>
#include <QGuiApplication>
#include <QWindow>

namespace pelmira {

QDBusConnection sessionBus()
{
    // Without an address the bus library would try to launch a bus, which takes its time.
    const bool hasBus =
        !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
        QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
    return hasBus ? QDBusConnection::sessionBus() : QDBusConnection(QStringLiteral("none"));
}

bool isInSandbox()
{
    return QFile::exists(QStringLiteral("/.flatpak-info")) || !qEnvironmentVariableIsEmpty("SNAP");
}

QString parentWindowIdentifier(const QWindow* window)
{
    if (!window || QGuiApplication::platformName() != QStringLiteral("xcb"))
        return {};
    return QStringLiteral("x11:") + QString::number(window->winId(), 16);
}

} // namespace pelmira
