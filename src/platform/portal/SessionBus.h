#pragma once

#include <QDBusConnection>
#include <QString>

class QWindow;

namespace pelmira {

/// The session's bus. Where there can't be one, a connection that isn't connected, at once: nothing
/// is started to make a bus.
QDBusConnection sessionBus();

/// Whether a container keeps us from the system, so that its devices and files are asked for
/// through the portals.
bool isInSandbox();

/// How a portal is told which window its dialog belongs to; empty for no window, and under Wayland,
/// where only the toolkit could export it.
QString parentWindowIdentifier(const QWindow* window);

} // namespace pelmira
