#include "platform/quick/PenMonitor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTabletEvent>

#include <utility>

namespace pelmira {

PenMonitor::PenMonitor(std::function<TouchResponder*()> responder)
    : _responder(std::move(responder))
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
        if (isDown && !wasDown)
            if (TouchResponder* responder = _responder())
                responder->pencilInteractionDidTap();
        break;
    }
    default:
        break;
    }
    return false;
}

void PenMonitor::setNear(bool isNear)
{
    if (TouchResponder* responder = _responder())
        responder->penIsNear(isNear);
}

} // namespace pelmira
