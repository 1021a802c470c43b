#pragma once

#include "platform/portal/SessionBus.h"

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace pelmira {

/// The application on the session's bus, where another start of it finds the one that runs
/// (org.freedesktop.Application,
/// https://specifications.freedesktop.org/desktop-entry-spec/latest/dbus.html).
class ApplicationService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim {
        Ours,
        Taken, ///< another process has the name
        NoBus,
    };

    explicit ApplicationService(QDBusConnection bus = sessionBus());
    ~ApplicationService() override;

    /// Takes the application's name. Calls are answered from then on, at turns of the event loop.
    Claim claim();
    /// Lets the process that has the name come to the front and open the files; their addresses are
    /// absolute. Waits for its answer; false if it gives none or refuses.
    bool handOver(const QStringList& uris);

    /// Another start handed these over; without any, the user only wants to see the application.
    /// Without a block every call is refused, so that the other one looks after itself.
    std::function<void(const QStringList& uris)> openBlock;

    static QString serviceName();

public Q_SLOTS:
    // The names are the protocol's.
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE void ActivateAction(const QString& name, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    void open(const QStringList& uris, const QVariantMap& platformData);

    QDBusConnection _bus;
};

} // namespace pelmira
