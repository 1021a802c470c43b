#pragma once

#include "platform/base/RunLoop.h"
#include "platform/touch/Touches.h"

#include <QObject>

#include <functional>
#include <vector>

namespace pelmira {

/// Watches the application's events for a pen: whether one is near the screen, and presses of its
/// side button. The strokes themselves come to the views as touches of the kind `Pen`.
class PenMonitor final : public QObject {
    Q_OBJECT

public:
    using Responders = std::function<std::vector<TouchResponder*>()>;

    /// Watches from now on. The function gives who is to be told, the one in front first, which may
    /// be nobody: that a pen is near concerns them all, a press of its button only the first.
    explicit PenMonitor(Responders responders);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setNear(bool isNear);
    void penWasSeen(bool isDown);

    Responders _responders;
    bool _isToldOf = false; ///< its coming was told, so its going will be
    Timer _gone;            ///< else it has gone when nothing is heard of it any more
    bool _sideButtonIsDown = false;
};

} // namespace pelmira
