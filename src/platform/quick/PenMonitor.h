#pragma once

#include "platform/touch/Touches.h"

#include <QObject>

#include <functional>

namespace pelmira {

/// Watches the application's events for a pen: whether one is near the screen, and presses of its
/// side button. The strokes themselves come to the views as touches of the kind `Pen`.
class PenMonitor final : public QObject {
    Q_OBJECT

public:
    /// Watches from now on. The function gives who is to be told, or nothing.
    explicit PenMonitor(std::function<TouchResponder*()> responder);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setNear(bool isNear);

    std::function<TouchResponder*()> _responder;
    bool _sideButtonIsDown = false;
};

} // namespace pelmira
