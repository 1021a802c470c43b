#pragma once

#include "shell/AppDelegate.h"

#include <QPointF>
#include <QPointingDevice>
#include <QSize>
#include <QString>

#include <initializer_list>
#include <memory>

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
    /// Looks at the crop tool, cancels it, and takes the whole photo.
    void crop(const QString& photoPath);
    void cutOut();
    void backgrounds();
    void brushes();
    void brushPanel();
    void twoFingers();
    void save();
    void leave();

    /// A numbered screenshot of what the window shows once it has come to rest.
    void picture(const char* name);
    /// The same at once, while something moves.
    void screenshot(const char* name);
    void tapItem(const char* accessibleName);
    void press(QPointF point, int finger = 0);
    void move(QPointF point);
    void release(QPointF point);
    void tap(QPointF point);
    /// From point to point in small steps; the finger is down before and after.
    void drag(std::initializer_list<QPointF> points);
    /// Two fingers at once, from one pair of points to another.
    void moveBoth(QPointF first, QPointF firstTo, QPointF second, QPointF secondTo);
    void releaseBoth(QPointF first, QPointF second);
    /// From a share of the photo's width and height to a point of the window.
    QPointF onPhoto(double x, double y) const;
    void waitForFill();
    void expect(bool condition, const char* what);
    ViewController* editor() const;

    AppDelegate& _application;
    QString _folder;
    std::unique_ptr<QPointingDevice> _finger;
    int _pictures = 0;
    bool _succeeded = true;
};

} // namespace pelmira
