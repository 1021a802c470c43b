#include "platform/portal/MailComposer.h"

#include "platform/portal/SchemeHandlers.h"

#include <utility>

namespace pelmira {

QUrl Mail::mailtoUrl() const
{
    const auto encoded = [](QString text) {
        text.replace(u'\n', QStringLiteral("\r\n")); // the line ends of mail
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    return QUrl(QStringLiteral("mailto:%1?subject=%2&body=%3")
                    .arg(QString::fromLatin1(QUrl::toPercentEncoding(recipient, "@")),
                         encoded(subject), encoded(body)),
                QUrl::StrictMode);
}

MailComposer::MailComposer(QDBusConnection bus) : _bus(bus), _pages(std::move(bus))
{
}

bool MailComposer::canSendMail()
{
    return isInSandbox() || isSchemeHandled(QStringLiteral("mailto"));
}

void MailComposer::compose(const QWindow* parent, const Mail& mail,
                           PageOpener::Completion completion)
{
    _request = std::make_unique<PortalRequest>(
        _bus, QStringLiteral("Email"), QStringLiteral("ComposeEmail"),
        QVariantList{parentWindowIdentifier(parent)},
        QVariantMap{{QStringLiteral("address"), mail.recipient},
                    {QStringLiteral("subject"), mail.subject},
                    {QStringLiteral("body"), mail.body}},
        [this, mail, completion = std::move(completion)](PortalOutcome outcome,
                                                         const QVariantMap&) {
            if (outcome == PortalOutcome::Unavailable)
                _pages.openWithProgram(mail.mailtoUrl(), completion);
            else
                completion(true);
        });
}

} // namespace pelmira
