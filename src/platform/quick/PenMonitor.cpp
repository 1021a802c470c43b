#include "platform/quick/PenMonitor.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTabletEvent>

#include <utility>

namespace pelmira {
namespace {

constexpr double secondsToBeGone = 1.0;

} // namespace

PenMonitor::PenMonitor(Responders responders) : _responders(std::move(responders))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PenMonitor::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::TabletLeaveProximity:
        _gone = {};
        setNear(false);
        break;
    case QEvent::TabletEnterProximity:
        _isToldOf = true;
        setNear(true);
        break;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease: {
        // The tip is the left button. An event passes here once for each receiver it has.
        const Qt::MouseButtons side = static_cast<QTabletEvent*>(event)->buttons();
        penWasSeen(side & Qt::LeftButton);
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

// X11 tells of coming and going only for some drivers. Fingers may not be shut out for good.
void PenMonitor::penWasSeen(bool isDown)
{
    setNear(true);
    _gone = {};
    if (!isDown && !_isToldOf)
        _gone = Timer::scheduled(secondsToBeGone, [this] { setNear(false); });
}

void PenMonitor::setNear(bool isNear)
{
    for (TouchResponder* responder : _responders())
        if (responder)
            responder->penIsNear(isNear);
}

} // namespace pelmira
