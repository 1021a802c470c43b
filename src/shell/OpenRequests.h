#pragma once

#include "controls/Alert.h"
#include "platform/base/RunLoop.h"
#include "platform/screen/ScreenStack.h"

#include <QStringList>

#include <functional>

namespace pelmira {

/// What happens when another start of the application hands its photos over: the window comes to
/// the front, and the photos are opened on the first screen. A cut-out that is under way is left
/// only if the user says so. The newest request counts.
class OpenRequests {
public:
    /// The stack and the alert, which stands over every screen, outlive this.
    OpenRequests(ScreenStack& screens, Alert& alert) : _screens(screens), _alert(alert) {}

    /// Local files' paths; none only brings the application to the front.
    void open(const QStringList& photos);

    std::function<void()> comeToFront;
    /// Opens photos; the first screen is on top.
    std::function<void(const QStringList& photos)> openPhotos;
    /// Saves the work under way: the new photo may yet be given up.
    std::function<void()> keepWork;
    /// A photo is being cut out.
    std::function<bool()> hasCutOut;
    /// A screen has something on its way to a file, or asks about what could not be written: it
    /// would go with the screen.
    std::function<bool()> hasUnfinishedWork;

private:
    void leaveAndOpen(const QStringList& photos);
    bool isWorkKept();

    ScreenStack& _screens;
    Alert& _alert;
    Timer _untilFinished;
};

} // namespace pelmira
