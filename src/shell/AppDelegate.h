#pragma once

#include "export/CutOutSaver.h"
#include "persistence/ResumeWorkHelper.h"
#include "platform/ApplicationLifecycle.h"
#include "platform/quick/NavigationController.h"
#include "platform/quick/PenMonitor.h"
#include "shell/OpenScreen.h"

#include <QQuickWindow>
#include <QString>

#include <memory>

namespace pelmira {

/// Starts the application and leads from one screen to the next.
class AppDelegate {
public:
    AppDelegate();

    /// What has to be settled before there is an application object.
    static void prepareProcess();

    /// Shows the window; a photo given by its path is opened at once.
    void applicationDidFinishLaunching(const QString& photoPath);

    /// Reads the photo off the main thread, lets the user crop it and opens the editor on it. A
    /// file that can't be opened leaves the present screen, with one line that says why.
    void openPhoto(const QString& path);

    /// A photo is being read.
    bool isOpening() const { return _openScreen->isBusy(); }

    QQuickWindow& window() { return _window; }
    NavigationController& navigation() { return _navigation; }

private:
    void refuse(const QString& line);
    void showCropTool(const QImage& photo, const QString& path);
    /// Opens the editor on a photo of working size. A new photo replaces the saved work.
    void startEditing(const QImage& image, bool isResume);
    void offerSavedWork();

    QQuickWindow _window;
    NavigationController _navigation{_window};
    std::shared_ptr<OpenScreen> _openScreen = std::make_shared<OpenScreen>();
    PenMonitor _penMonitor{
        [this] { return dynamic_cast<TouchResponder*>(_navigation.topScreen()); }};
    ResumeWorkHelper& _resumeWork;
    ApplicationLifecycle _lifecycle;
    CutOutSaver _saver{PhotoLibrary()};
};

} // namespace pelmira
