#include "settings/EventLogVC.h"

#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

namespace pelmira {

EventLogVC::EventLogVC(EventLog& eventLog) : _eventLog(eventLog), _text(eventLog.text())
{
}

QUrl EventLogVC::layoutFile() const
{
    return layoutUrl("EventLogScreen");
}

QString EventLogVC::title()
{
    return localized("settings.row.eventLog");
}

void EventLogVC::deleteButtonPressed()
{
    if (!_eventLog.remove())
        _alert.showMessage(localized("eventlog.error.delete"));
    _text = _eventLog.text();
    Q_EMIT changed();
}

void EventLogVC::doneButtonPressed()
{
    if (dismissBlock)
        dismissBlock();
}

} // namespace pelmira
