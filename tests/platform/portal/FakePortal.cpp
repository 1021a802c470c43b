#include "platform/portal/FakePortal.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QFile>

namespace pelmira::test {

bool PrivateBus::start()
{
    _daemon.start(u"dbus-daemon"_s, {QStringLiteral("--config-file=" PRIVATE_BUS_CONFIG),
                                     u"--nofork"_s, u"--print-address"_s});
    if (!_daemon.waitForStarted() || !_daemon.waitForReadyRead())
        return false;
    _address = QString::fromUtf8(_daemon.readLine()).trimmed();
    return !_address.isEmpty();
}

PrivateBus::~PrivateBus()
{
    for (const QString& name : _names)
        QDBusConnection::disconnectFromBus(name);
    die();
}

void PrivateBus::die()
{
    _daemon.kill();
    _daemon.waitForFinished();
}

QDBusConnection PrivateBus::connect(const char* name)
{
    _names.append(QString::fromUtf8(name));
    return QDBusConnection::connectToBus(_address, _names.last());
}

FakePortal::FakePortal(const QDBusConnection& bus) : _bus(bus)
{
    _bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
    _bus.registerService(u"org.freedesktop.portal.Desktop"_s);
}

void FakePortal::leave()
{
    _bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
}

void FakePortal::respond(const QString& path)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
    signal << response << results;
    _bus.send(signal);
}

bool FakePortal::handleMessage(const QDBusMessage& message, const QDBusConnection& bus)
{
    if (message.member() == u"Close"_s) {
        ++closed;
        return true;
    }
    method = message.interface() + u'.' + message.member();
    arguments = message.arguments();
    if (calledBlock)
        calledBlock(++calls);
    if (manner == Manner::Ignore)
        return true;
    if (manner == Manner::Refuse)
        return bus.send(
            message.createErrorReply(u"org.freedesktop.portal.Error.NotAllowed"_s, u"refused"_s));
    if (message.member() == u"Get"_s)
        return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
    if (message.member() == u"ShowItems"_s)
        return bus.send(message.createReply());
    for (const QVariant& each : arguments)
        if (each.canConvert<QDBusUnixFileDescriptor>()) {
            QFile file;
            if (file.open(each.value<QDBusUnixFileDescriptor>().fileDescriptor(),
                          QIODevice::ReadOnly))
                passedFile = file.readAll();
        }
    const auto options = qdbus_cast<QVariantMap>(arguments.last());
    QString sender = message.service().mid(1);
    const QString path = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
        sender.replace(u'.', u'_'), options[u"handle_token"_s].toString());
    const auto reply = message.createReply(QVariant::fromValue(QDBusObjectPath(path)));
    if (manner == Manner::AnswerBeforeReturn)
        respond(path);
    bus.send(reply);
    if (manner == Manner::Answer)
        respond(path);
    return true;
}

} // namespace pelmira::test
