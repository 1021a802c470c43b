#pragma once

#include "Visitor.h"
#include "shell/AppDelegate.h"

#include <QPointF>
#include <QSize>
#include <QString>
#include <QTest>

#include <functional>

namespace pelmira {

class EditBackgroundVC;
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
    /// Only what leads from a cut-out to finished pictures.
    bool composeOnly(const QString& photoPath, QSize windowSize);
    /// The settings and what they lead to, in whatever language.
    bool visitSettings(QSize windowSize);
    /// Goes on with what was begun.
    bool resumeWork(QSize windowSize);

    using Visitor::pictures;

private:
    void launch(QSize windowSize);
    void firstScreen();
    void tapText(const char* key);
    void settings();
    void moreApps();
    void eventLog();
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
    /// Compositions on canvases of several shapes, on each kind of background.
    void compose();
    void chooseColour();
    void composeOnTurnedObject();
    void composeOnMixedColour();
    void composeOnWideCanvas();
    void composeOnPattern();
    void composeOnPhoto();
    void openBackgroundEditor();
    void chooseRatio(const char* title);
    void saveComposition();
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
    EditBackgroundVC* backgroundEditor() const;
    /// From a share of the canvas's width and height to a point of the window.
    QPointF onCanvas(double x, double y) const;

    AppDelegate& _application;
};

template <class Kind>
Kind* Tour::waitForScreen(const char* what)
{
    const auto top = [this] { return qobject_cast<Kind*>(_application.navigation().topScreen()); };
    waitFor([&] { return top() != nullptr; }, what);
    settle();
    return top();
}

} // namespace pelmira
