#pragma once

#include "controls/Alert.h"
#include "platform/screen/Screen.h"
#include "settings/EventLog.h"

#include <QString>

#include <functional>

namespace pelmira {

/// Shows what the log of use holds, and deletes it.
class EventLogVC final : public Screen {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)

public:
    /// The log outlives the screen.
    explicit EventLogVC(EventLog& eventLog);

    std::function<void()> dismissBlock;

    Q_INVOKABLE void deleteButtonPressed();
    Q_INVOKABLE void doneButtonPressed();

    QUrl layoutFile() const override;
    void pressedBesideSheet() override { doneButtonPressed(); }

    static QString title();
    /// Empty without a log.
    QString text() const { return _text; }
    Alert* alert() { return &_alert; }

Q_SIGNALS:
    void changed();

private:
    EventLog& _eventLog;
    QString _text;
    Alert _alert;
};

} // namespace pelmira
