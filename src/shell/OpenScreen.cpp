#include "shell/OpenScreen.h"

#include "platform/RunLoop.h"

#include <utility>

namespace pelmira {

QUrl OpenScreen::layoutFile() const
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/OpenScreen.qml"));
}

void OpenScreen::choosePhoto(const QUrl& url)
{
    if (!_isBusy && url.isLocalFile() && photoChosen)
        photoChosen(url.toLocalFile());
}

void OpenScreen::viewDidAppear(bool)
{
    if (std::exchange(_canShownResume, false) && appearedFirst)
        appearedFirst();
}

void OpenScreen::setMessage(const QString& message)
{
    _message = message;
    Q_EMIT changed();
}

void OpenScreen::setBusy(bool isBusy)
{
    _isBusy = isBusy;
    Q_EMIT changed();
}

void OpenScreen::setResumeView(std::shared_ptr<ResumeView> resumeView)
{
    // The old one may be the very button press that takes it away: it stays until the next turn.
    mainQueue().async([old = std::exchange(_resumeView, std::move(resumeView))] {});
    Q_EMIT changed();
}

} // namespace pelmira
