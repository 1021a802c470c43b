#pragma once

#include "Visitor.h"
#include "shell/AppDelegate.h"

#include <QPointF>
#include <QSize>
#include <QString>

#include <functional>

namespace pelmira {

class SaveViewController;
class ViewController;

/// Plays the application from its first screen on.
class Tour : private Visitor {
public:
    Tour(AppDelegate& application, QString folder, int firstPicture);

    /// From picking a photo to leaving the editor; false if something did not come about in time.
    bool play(const QString& photoPath, QSize windowSize);
    /// Begins to cut out and puts the application into the background: the process may be killed.
    bool beginWork(const QString& photoPath, QSize windowSize);
    /// Goes on with what was begun.
    bool resumeWork(QSize windowSize);

    using Visitor::pictures;

private:
    void launch(QSize windowSize);
    void firstScreen();
    void camera();
    void pickPhoto();
    /// Looks at the crop tool, cancels it, and takes the whole photo.
    void crop(const QString& photoPath);
    void openWhole(const QString& photoPath);
    void waitForEditor();
    void cutOut();
    void backgrounds();
    void brushes();
    void brushPanel();
    void twoFingers();
    void save();
    void help();
    void openSaveScreen();
    void saveAs(const char* button, const char* resolution);
    void share(const char* button, const QString& file);
    void leave();

    template <class Kind>
    Kind* waitForScreen(const char* what);
    /// From a share of the photo's width and height to a point of the window.
    QPointF onPhoto(double x, double y) const;
    void waitForFill();
    /// Patiently.
    void waitFor(const std::function<bool()>& condition, const char* what);
    ViewController* editor() const;
    SaveViewController* saveView() const;

    AppDelegate& _application;
};

} // namespace pelmira
