#include "settings/EventLogVC.h"

#include "platform/text/LocalizedStrings.h"

namespace pelmira {

EventLogVC::EventLogVC(EventLog& eventLog) : _eventLog(eventLog), _text(eventLog.text())
{
}

QUrl EventLogVC::layoutFile() const
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/EventLogScreen.qml"));
}

QString EventLogVC::title()
{
    return localized(QStringLiteral("settings.row.eventLog"));
}

void EventLogVC::deleteButtonPressed()
{
    if (!_eventLog.remove())
        _alert.show({{},
                     localized(QStringLiteral("eventlog.error.delete")),
                     localized(QStringLiteral("generic.done")),
                     QStringList()},
                    [](const QString&) {});
    _text = _eventLog.text();
    Q_EMIT changed();
}

void EventLogVC::doneButtonPressed()
{
    if (dismissBlock)
        dismissBlock();
}

} // namespace pelmira
