#pragma once

#include "controls/Alert.h"
#include "platform/portal/MailComposer.h"

#include <QPointer>
#include <QString>

#include <functional>

namespace pelmira {

/// The mail to the maker, which tells at its end what it was sent from. Main thread only.
class FeedbackHelper {
public:
    /// The way to the user's mail program.
    struct MailProgram {
        std::function<bool()> canSendMail;
        std::function<void(const Mail& mail, std::function<void(bool wasPresented)>)> compose;
    };

    /// `viewController` is the message of the screen on which the mail is shown.
    FeedbackHelper(QPointer<Alert> viewController, MailProgram program, QString supportAddress);

    /// Shows the mail, or says that mail isn't set up.
    void showMail();

    static Mail mailTo(const QString& supportAddress);

private:
    static void showNotConfigured(Alert& alert);

    QPointer<Alert> _viewController;
    MailProgram _program;
    QString _supportAddress;
};

} // namespace pelmira
