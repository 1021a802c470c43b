#include "Visitor.h"

#include <QAccessible>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <cstdio>
#include <utility>

namespace pelmira {
namespace {

constexpr int settleMilliseconds = 700;
constexpr double edge = 30; // points, of a view that things are scrolled in

QQuickItem* itemNamed(QQuickItem* root, const QString& name)
{
    if (!root->isVisible())
        return nullptr;
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(root);
    if (interface && interface->role() != QAccessible::StaticText &&
        interface->text(QAccessible::Name) == name)
        return root;
    for (QQuickItem* child : root->childItems())
        if (QQuickItem* found = itemNamed(child, name))
            return found;
    return nullptr;
}

/// What the item is scrolled in, if anything.
const QQuickItem* viewAround(const QQuickItem* item)
{
    while (item && !item->inherits("QQuickFlickable"))
        item = item->parentItem();
    return item;
}

QRectF partInSight(const QQuickItem* item)
{
    const QRectF window({}, QSizeF(item->window()->size()));
    return item->mapRectToScene(item->boundingRect()) & window.adjusted(0.0, 0.0, -1.0, -1.0);
}

} // namespace

Visitor::Visitor(QQuickWindow& window, QString folder, int firstPicture)
    : _window(window), _folder(std::move(folder)), _finger(QTest::createTouchDevice()),
      _pictures(firstPicture)
{
}

void Visitor::picture(const char* name)
{
    settle();
    screenshot(name);
}

void Visitor::screenshot(const char* name)
{
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(_folder)
                             .arg(++_pictures, 2, 10, QLatin1Char('0'))
                             .arg(QLatin1String(name));
    expect(_window.grabWindow().save(file), name);
}

void Visitor::settle()
{
    QTest::qWait(settleMilliseconds);
}

void Visitor::scrollTo(const char* accessibleName)
{
    constexpr int mostDrags = 8;
    for (int drags = 0; drags < mostDrags; ++drags) {
        QQuickItem* item = itemNamed(_window.contentItem(), QString::fromUtf8(accessibleName));
        const QQuickItem* view = item ? viewAround(item) : nullptr;
        if (!view)
            break; // what isn't there, the tap tells
        const QRectF seen = partInSight(view);
        const bool goesSideways = view->property("contentWidth").toDouble() > view->width();
        const QRectF room = goesSideways ? seen.adjusted(edge, 0.0, -edge, 0.0)
                                         : seen.adjusted(0.0, edge, 0.0, -edge);
        const QPointF at = item->mapToScene(item->boundingRect().center());
        if (room.contains(at))
            break;
        const QPointF start = seen.center();
        const QPointF end =
            goesSideways ? QPointF(at.x() > start.x() ? room.left() : room.right(), start.y())
                         : QPointF(start.x(), at.y() > start.y() ? room.top() : room.bottom());
        press(start);
        drag({start, end});
        QTest::qWait(200); // held still, so that the list stays where it was brought
        move(end);
        release(end);
        settle();
    }
}

void Visitor::tapItem(const char* accessibleName)
{
    QQuickItem* item = itemNamed(_window.contentItem(), QString::fromUtf8(accessibleName));
    expect(item != nullptr, accessibleName);
    if (!item)
        return;
    const auto centreOf = [item] { return item->mapToScene(item->boundingRect().center()); };
    if (const QQuickItem* view = viewAround(item); view && !partInSight(view).contains(centreOf()))
        scrollTo(accessibleName);
    const QPointF centre = centreOf();
    press(centre);
    release(centre);
    QTest::qWait(50);
}

bool Visitor::isShown(const char* accessibleName) const
{
    return itemNamed(_window.contentItem(), QString::fromUtf8(accessibleName)) != nullptr;
}

QPointF Visitor::pointOf(const char* accessibleName, double x, double y)
{
    QQuickItem* item = itemNamed(_window.contentItem(), QString::fromLatin1(accessibleName));
    expect(item != nullptr, accessibleName);
    return item ? item->mapToScene({x * item->width(), y * item->height()}) : QPointF();
}

void Visitor::pressAt(const char* accessibleName, double x, double y)
{
    press(pointOf(accessibleName, x, y));
}

void Visitor::releaseAt(const char* accessibleName, double x, double y)
{
    release(pointOf(accessibleName, x, y));
}

void Visitor::tapAt(const char* accessibleName, double x, double y)
{
    pressAt(accessibleName, x, y);
    releaseAt(accessibleName, x, y);
    QTest::qWait(50);
}

void Visitor::press(QPointF point, int finger)
{
    auto event = QTest::touchEvent(&_window, _finger.get());
    for (int i = 0; i < finger; ++i)
        event.stationary(i);
    event.press(finger, point.toPoint()).commit();
    QTest::qWait(20);
}

void Visitor::move(QPointF point)
{
    QTest::touchEvent(&_window, _finger.get()).move(0, point.toPoint());
    QTest::qWait(10);
}

void Visitor::release(QPointF point)
{
    QTest::touchEvent(&_window, _finger.get()).release(0, point.toPoint());
    QTest::qWait(20);
}

void Visitor::tap(QPointF point)
{
    press(point);
    release(point);
    QTest::qWait(settleMilliseconds);
}

void Visitor::drag(std::initializer_list<QPointF> points)
{
    constexpr int steps = 12;
    for (const QPointF* to = points.begin() + 1; to < points.end(); ++to)
        for (int i = 1; i <= steps; ++i)
            move(*(to - 1) + (*to - *(to - 1)) * (double(i) / steps));
}

void Visitor::moveBoth(QPointF first, QPointF firstTo, QPointF second, QPointF secondTo)
{
    constexpr int steps = 15;
    for (int i = 1; i <= steps; ++i) {
        const double t = double(i) / steps;
        QTest::touchEvent(&_window, _finger.get())
            .move(0, (first + (firstTo - first) * t).toPoint())
            .move(1, (second + (secondTo - second) * t).toPoint());
        QTest::qWait(10);
    }
}

void Visitor::releaseBoth(QPointF first, QPointF second)
{
    QTest::touchEvent(&_window, _finger.get())
        .release(0, first.toPoint())
        .release(1, second.toPoint());
    QTest::qWait(20);
}

void Visitor::expect(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "tour: failed at: %s\n", what);
    _succeeded = false;
}

} // namespace pelmira
