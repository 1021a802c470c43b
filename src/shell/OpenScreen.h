#pragma once

#include "platform/Screen.h"
#include "shell/ResumeView.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

namespace pelmira {

/// The first screen: asks for a photo, says why one could not be opened, and offers once, when it
/// first appears, to go on with unfinished work.
class OpenScreen final : public Screen {
    Q_OBJECT
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(bool busy READ isBusy NOTIFY changed)
    Q_PROPERTY(pelmira::ResumeView* resumeView READ resumeView NOTIFY changed)

public:
    /// A file that the user picked or dropped.
    std::function<void(const QString& path)> photoChosen;
    /// The first appearance: the time to offer unfinished work.
    std::function<void()> appearedFirst;

    Q_INVOKABLE void choosePhoto(const QUrl& url);

    QUrl layoutFile() const override;
    void viewDidAppear(bool animated) override;

    QString message() const { return _message; }
    void setMessage(const QString& message);
    /// A photo is being read.
    bool isBusy() const { return _isBusy; }
    void setBusy(bool isBusy);
    ResumeView* resumeView() const { return _resumeView.get(); }
    /// Shows the offer, or with nothing takes it away.
    void setResumeView(std::shared_ptr<ResumeView> resumeView);

Q_SIGNALS:
    void changed();

private:
    QString _message;
    bool _isBusy = false;
    bool _canShownResume = true;
    std::shared_ptr<ResumeView> _resumeView;
};

} // namespace pelmira
