#include "settings/FeedbackHelper.h"

#include "platform/text/LocalizedStrings.h"
#include "settings/AppInfo.h"
#include "settings/ZKLPlatformUtils.h"

#include <QSysInfo>

#include <utility>

namespace pelmira {

FeedbackHelper::FeedbackHelper(QPointer<Alert> viewController, MailProgram program,
                               QString supportAddress)
    : _viewController(std::move(viewController)), _program(std::move(program)),
      _supportAddress(std::move(supportAddress))
{
}

void FeedbackHelper::showMail()
{
    if (!_program.canSendMail()) {
        if (_viewController)
            showNotConfigured(*_viewController);
        return;
    }
    _program.compose(mailTo(_supportAddress), [alert = _viewController](bool wasPresented) {
        if (alert && !wasPresented)
            showNotConfigured(*alert);
    });
}

void FeedbackHelper::showNotConfigured(Alert& alert)
{
    alert.showMessage(localized("feedback.error.message"), localized("feedback.error.title"));
}

// For the support desk, which sorts its mails by these lines: the same in every language and on
// every system.
Mail FeedbackHelper::mailTo(const QString& supportAddress)
{
    QString body = QStringLiteral("\n\n-------------------------\n"
                                  "Please write your message above the line\n\n");
    body += QStringLiteral("App Version: ") + AppInfo::version() + u'\n';
    body += QStringLiteral("Device: ") + ZKLPlatformUtils::deviceModelName() + u'\n';
    body += QStringLiteral("iOS version: ") + QSysInfo::productType() + QStringLiteral(", ") +
            QSysInfo::productVersion() + u'\n';
    body += QStringLiteral("Free Space: ") + ZKLPlatformUtils::freeDiskspaceAsString() + u'\n';
    return {supportAddress, AppInfo::displayName() + QStringLiteral(" Support"), body};
}

} // namespace pelmira
