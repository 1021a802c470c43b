#pragma once

#include "shell/AppDelegate.h"

#include <QPointF>
#include <QSize>
#include <QString>

class QPointingDevice;

namespace pelmira {

class ViewController;

/// A user of the application: touches its window, looks at it and takes pictures of it.
class Tour {
public:
    Tour(AppDelegate& application, QString folder);

    /// Plays the whole of it; false if something did not come about in time.
    bool play(const QString& photoPath, QSize windowSize);

private:
    void firstScreen();
    void cutOut();
    void backgrounds();
    void save();

    /// A numbered screenshot of what the window shows once it has come to rest.
    void picture(const char* name);
    void tapItem(const char* accessibleName);
    void press(QPointF point);
    void move(QPointF point);
    void release(QPointF point);
    /// From a share of the photo's width and height to a point of the window.
    QPointF onPhoto(double x, double y) const;
    void waitForFill();
    void expect(bool condition, const char* what);
    ViewController* editor() const;

    AppDelegate& _application;
    QString _folder;
    QPointingDevice* _finger;
    int _pictures = 0;
    bool _succeeded = true;
};

} // namespace pelmira
