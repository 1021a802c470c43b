#include "platform/portal/OpenURI.h"

#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace pelmira {

OpenURI::OpenURI(QDBusConnection bus) : _bus(std::move(bus))
{
}

void OpenURI::openWith(const QWindow* parent, const QString& path, Completion completion)
{
    open(QStringLiteral("OpenFile"), parent, path, {{QStringLiteral("ask"), true}},
         std::move(completion));
}

void OpenURI::openDirectory(const QWindow* parent, const QString& path, Completion completion)
{
    open(QStringLiteral("OpenDirectory"), parent, path, {}, std::move(completion));
}

bool OpenURI::openUri(const QUrl& uri)
{
    return QDesktopServices::openUrl(uri);
}

void OpenURI::open(const QString& method, const QWindow* parent, const QString& path,
                   const QVariantMap& options, Completion completion)
{
    // By descriptor: the portal then knows that we may read the file, and where we are in a
    // sandbox, the other program gets it under a path of its own.
    QDBusUnixFileDescriptor descriptor;
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file >= 0)
        descriptor.giveFileDescriptor(file);
    const bool canPass = descriptor.isValid() && _bus.connectionCapabilities().testFlag(
                                                     QDBusConnection::UnixFileDescriptorPassing);
    _request = std::make_unique<PortalRequest>(
        canPass ? _bus : QDBusConnection(QStringLiteral("none")), QStringLiteral("OpenURI"), method,
        QVariantList{parentWindowIdentifier(parent), QVariant::fromValue(descriptor)}, options,
        [completion = std::move(completion)](PortalOutcome outcome, const QVariantMap&) {
            completion(outcome);
        });
}

} // namespace pelmira
