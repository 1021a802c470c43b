#pragma once

#include <QPointF>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QString>

#include <initializer_list>
#include <memory>

namespace pelmira {

/// Someone who touches a window, looks at it and takes pictures of it. Points are the window's.
class Visitor {
public:
    /// The pictures are numbered from the one after `firstPicture` on.
    Visitor(QQuickWindow& window, QString folder, int firstPicture);

    /// A numbered screenshot of what the window shows once it has come to rest.
    void picture(const char* name);
    /// The same at once, while something moves.
    void screenshot(const char* name);
    /// Drags the view around an item until it is in sight.
    void scrollTo(const char* accessibleName);
    void tapItem(const char* accessibleName);
    bool isShown(const char* accessibleName) const;
    /// At a share of the item's width and height.
    void pressAt(const char* accessibleName, double x, double y);
    void releaseAt(const char* accessibleName, double x, double y);
    void tapAt(const char* accessibleName, double x, double y);
    void press(QPointF point, int finger = 0);
    void move(QPointF point);
    void release(QPointF point);
    void tap(QPointF point);
    /// From point to point in small steps; the finger is down before and after.
    void drag(std::initializer_list<QPointF> points);
    /// Two fingers at once, from one pair of points to another.
    void moveBoth(QPointF first, QPointF firstTo, QPointF second, QPointF secondTo);
    void releaseBoth(QPointF first, QPointF second);
    /// Says what did not come about, and remembers that.
    void expect(bool condition, const char* what);

    static void settle();
    const QString& folder() const { return _folder; }
    int pictures() const { return _pictures; }
    bool succeeded() const { return _succeeded; }

private:
    /// In the window; the window's corner if there is no such item, which is remembered.
    QPointF pointOf(const char* accessibleName, double x, double y);

    QQuickWindow& _window;
    const QString _folder;
    const std::unique_ptr<QPointingDevice> _finger;
    int _pictures;
    bool _succeeded = true;
};

} // namespace pelmira
