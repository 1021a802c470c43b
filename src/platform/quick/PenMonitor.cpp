#include "platform/quick/PenMonitor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTabletEvent>

#include <utility>

namespace pelmira {

PenMonitor::PenMonitor(Responders responders) : _responders(std::move(responders))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PenMonitor::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::TabletLeaveProximity:
        setNear(false);
        break;
    case QEvent::TabletEnterProximity:
        setNear(true);
        break;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease: {
        setNear(true);
        // The tip is the left button. An event passes here once for each receiver it has.
        const Qt::MouseButtons side = static_cast<QTabletEvent*>(event)->buttons();
        const bool isDown = side & (Qt::RightButton | Qt::MiddleButton);
        const bool wasDown = std::exchange(_sideButtonIsDown, isDown);
        if (!isDown || wasDown)
            break;
        if (const auto responders = _responders(); !responders.empty() && responders.front())
            responders.front()->pencilInteractionDidTap();
        break;
    }
    default:
        break;
    }
    return false;
}

void PenMonitor::setNear(bool isNear)
{
    for (TouchResponder* responder : _responders())
        if (responder)
            responder->penIsNear(isNear);
}

} // namespace pelmira
