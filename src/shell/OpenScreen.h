#pragma once

#include "platform/Screen.h"

#include <QString>
#include <QUrl>

#include <functional>

namespace pelmira {

/// The first screen: asks for a photo and says why one could not be opened.
class OpenScreen final : public Screen {
    Q_OBJECT
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(bool busy READ isBusy NOTIFY changed)

public:
    QUrl layoutFile() const override
    {
        return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/OpenScreen.qml"));
    }

    /// A file that the user picked or dropped.
    Q_INVOKABLE void choosePhoto(const QUrl& url)
    {
        if (!_isBusy && url.isLocalFile() && photoChosen)
            photoChosen(url.toLocalFile());
    }
    std::function<void(const QString& path)> photoChosen;

    QString message() const { return _message; }
    void setMessage(const QString& message)
    {
        _message = message;
        Q_EMIT changed();
    }
    /// A photo is being read.
    bool isBusy() const { return _isBusy; }
    void setBusy(bool isBusy)
    {
        _isBusy = isBusy;
        Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    QString _message;
    bool _isBusy = false;
};

} // namespace pelmira
