#pragma once

#include "platform/portal/PageOpener.h"

#include <QString>

namespace pelmira {

/// A mail as it is shown to the user, who changes and sends it.
struct Mail {
    QString recipient;
    QString subject;
    QString body; ///< plain text

    /// RFC 6068.
    QUrl mailtoUrl() const;
};

/// Opens the user's mail program on a new mail: through the portal (Email), or with xdg-open where
/// there is none.
class MailComposer {
public:
    explicit MailComposer(QDBusConnection bus = sessionBus());

    /// False where no program for mail is installed. In a sandbox only the portal knows.
    static bool canSendMail();

    /// The completion is called as that of PageOpener.
    void compose(const QWindow* parent, const Mail& mail, PageOpener::Completion completion);

private:
    QDBusConnection _bus;
    std::unique_ptr<PortalRequest> _request;
    PageOpener _pages;
};

} // namespace pelmira
