#pragma once

#include "AppVisitor.h"

namespace pelmira {

/// Plays the application from its first screen on.
class Tour : private AppVisitor {
public:
    using AppVisitor::AppVisitor;

    /// From picking a photo to leaving the editor; false if something did not come about in time.
    bool play(const QString& photoPath, QSize windowSize);
    /// Begins to cut out and puts the application into the background: the process may be killed.
    bool beginWork(const QString& photoPath, QSize windowSize);
    /// Only what leads from a cut-out to finished pictures.
    bool composeOnly(const QString& photoPath, QSize windowSize);
    /// The settings and what they lead to, in whatever language.
    bool visitSettings(QSize windowSize);
    /// From screen to screen; on each, nothing may wake up for so many seconds.
    bool rest(const QString& photoPath, QSize windowSize, int seconds);
    /// Goes on with what was begun.
    bool resumeWork(QSize windowSize);

    using Visitor::pictures;

private:
    void firstScreen();
    void settings();
    void moreApps();
    void showMoreApps();
    void eventLog();
    void camera();
    void pickPhoto();
    /// Looks at the crop tool, cancels it, and takes the whole photo.
    void crop(const QString& photoPath);
    void openWhole(const QString& photoPath);
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
    void pickBackgroundPhoto();
    void composeOnPhoto();
    void chooseRatio(const char* title);
    void saveComposition();
    void help();
    void openSaveScreen();
    void share(const char* button, const QString& file);
    void leave();
    void expectRest(const char* screen);
    void restInSettings();
    void restAtIntake(const QString& photoPath);
    void restInEditor();
    void restInBackgroundEditor();

    int _idleSeconds = 0;
};

} // namespace pelmira
