#include "platform/portal/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QRandomGenerator>

#include <utility>

namespace pelmira {
namespace {

const auto service = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// A portal says at once that it has taken a question; one that is stuck shall not keep the user.
constexpr int callTimeout = 5000; // milliseconds

/// Where the request's object will stand: so one can listen before the answer can come.
QString expectedPath(const QDBusConnection& bus, const QString& token)
{
    const QString sender = bus.baseService().remove(0, 1).replace(u'.', u'_');
    return QStringLiteral("%1/request/%2/%3").arg(portalPath, sender, token);
}

} // namespace

PortalRequest::PortalRequest(const QDBusConnection& bus, const QString& name, const QString& method,
                             const QVariantList& arguments, QVariantMap options,
                             Completion completion)
    : _bus(bus), _completion(std::move(completion))
{
    if (!_bus.isConnected()) {
        finish(PortalOutcome::Unavailable);
        return;
    }
    const QString token =
        QStringLiteral("pelmira%1").arg(QRandomGenerator::system()->generate64(), 0, 16);
    options.insert(QStringLiteral("handle_token"), token);
    _path = expectedPath(_bus, token);
    _bus.connect(service, _path, requestInterface, QStringLiteral("Response"), this,
                 SLOT(responded(uint, QVariantMap)));

    // A bus that ends tells of no service that goes with it.
    _bus.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                 SLOT(busLost()));
    auto* portal =
        new QDBusServiceWatcher(service, _bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(portal, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(PortalOutcome::Unavailable); });

    QDBusMessage call = QDBusMessage::createMethodCall(
        service, portalPath, QStringLiteral("org.freedesktop.portal.") + name, method);
    call.setArguments(arguments);
    call << options;
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call, callTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        watcher->deleteLater();
        if (reply.isError()) {
            close(); // it may have been too late only, and would still show a dialog
            finish(PortalOutcome::Unavailable);
        }
    });
}

PortalRequest::~PortalRequest()
{
    if (!_isFinished)
        close();
}

void PortalRequest::close()
{
    if (!_path.isEmpty())
        _bus.send(QDBusMessage::createMethodCall(service, _path, requestInterface,
                                                 QStringLiteral("Close")));
}

void PortalRequest::busLost()
{
    finish(PortalOutcome::Unavailable);
}

// 1 is the user's refusal. 2, "ended in some other way", is what several portals answer when the
// dialog was closed by Escape or by its frame: it was seen all the same.
void PortalRequest::responded(uint code, const QVariantMap& results)
{
    finish(code == 0 ? PortalOutcome::Done : PortalOutcome::Cancelled, results);
}

void PortalRequest::finish(PortalOutcome outcome, const QVariantMap& results)
{
    if (std::exchange(_isFinished, true))
        return;
    // Queued: never within the constructor, and the completion may destroy this.
    QMetaObject::invokeMethod(
        this,
        [this, outcome, results] {
            const Completion completion = std::move(_completion);
            completion(outcome, results);
        },
        Qt::QueuedConnection);
}

} // namespace pelmira
