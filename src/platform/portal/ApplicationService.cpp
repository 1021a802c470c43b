#include "platform/portal/ApplicationService.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <utility>

namespace pelmira {
namespace {

constexpr int answerMilliseconds = 5000;
constexpr const char* activationTokenVariable = "XDG_ACTIVATION_TOKEN";
const QString activationTokenKey = QStringLiteral("activation-token");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

// The service's name, as the protocol makes a path of it.
QString objectPath()
{
    return u'/' + ApplicationService::serviceName().replace(u'.', u'/');
}

} // namespace

QString ApplicationService::serviceName()
{
    return QStringLiteral("org.pelmira.Pelmira");
}

ApplicationService::ApplicationService(QDBusConnection bus) : _bus(std::move(bus))
{
}

ApplicationService::~ApplicationService()
{
    _bus.unregisterObject(objectPath());
}

ApplicationService::Claim ApplicationService::claim()
{
    if (!_bus.isConnected())
        return Claim::NoBus;
    // The object first: who sees the name may call at once.
    _bus.registerObject(objectPath(), this, QDBusConnection::ExportScriptableSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        _bus.interface()->registerService(serviceName());
    if (!reply.isValid())
        return Claim::NoBus;
    return reply.value() == QDBusConnectionInterface::ServiceRegistered ? Claim::Ours
                                                                        : Claim::Taken;
}

bool ApplicationService::handOver(const QStringList& uris)
{
    QDBusMessage call = QDBusMessage::createMethodCall(serviceName(), objectPath(), interfaceName,
                                                       uris.isEmpty() ? QStringLiteral("Activate")
                                                                      : QStringLiteral("Open"));
    call.setAutoStartService(false);
    if (!uris.isEmpty())
        call << uris;
    // What started us has given us the right to the front, which the other one has to show.
    QVariantMap platformData;
    if (const QString token = qEnvironmentVariable(activationTokenVariable); !token.isEmpty())
        platformData.insert(activationTokenKey, token);
    call << platformData;
    return _bus.call(call, QDBus::Block, answerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

void ApplicationService::Activate(const QVariantMap& platformData)
{
    open({}, platformData);
}

void ApplicationService::Open(const QStringList& uris, const QVariantMap& platformData)
{
    open(uris, platformData);
}

void ApplicationService::ActivateAction(const QString&, const QVariantList&, const QVariantMap&)
{
    sendErrorReply(QDBusError::NotSupported, QStringLiteral("no actions"));
}

void ApplicationService::open(const QStringList& uris, const QVariantMap& platformData)
{
    if (!openBlock) {
        sendErrorReply(QDBusError::Failed, QStringLiteral("quitting"));
        return;
    }
    // Qt reads it when the window asks for the front.
    if (const QString token = platformData.value(activationTokenKey).toString(); !token.isEmpty())
        qputenv(activationTokenVariable, token.toUtf8());
    openBlock(uris);
}

} // namespace pelmira
