#include "Tour.h"

#include "crop/TOCropViewController.h"
#include "mask_editor/ViewController.h"

#include <QAccessible>
#include <QDir>
#include <QImage>
#include <QQuickItem>
#include <QTest>

#include <cstdio>

namespace pelmira {
namespace {

constexpr int settleMilliseconds = 700;
constexpr int patienceMilliseconds = 20000;

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

} // namespace

Tour::Tour(AppDelegate& application, QString folder)
    : _application(application), _folder(std::move(folder)), _finger(QTest::createTouchDevice())
{
}

bool Tour::play(const QString& photoPath, QSize windowSize)
{
    _application.window().resize(windowSize);
    _application.applicationDidFinishLaunching({});
    expect(QTest::qWaitForWindowExposed(&_application.window()), "the window shows");
    firstScreen();
    crop(photoPath);
    expect(QTest::qWaitFor(
               [this] {
                   return editor() && editor()->engine() && editor()->engine()->canvas.isOpen();
               },
               patienceMilliseconds),
           "the photo opens");
    if (!_succeeded)
        return false;
    picture("photo-opened");
    cutOut();
    backgrounds();
    brushes();
    brushPanel();
    twoFingers();
    save();
    leave();
    return _succeeded;
}

void Tour::firstScreen()
{
    picture("first-screen");
    const QString broken = _folder + QStringLiteral("/broken.jpg");
    QFile file(broken);
    expect(file.open(QIODevice::WriteOnly) && file.write("not a photo") > 0, "a broken file");
    file.close();
    _application.openPhoto(broken);
    expect(QTest::qWaitFor([this] { return !_application.isOpening(); }, patienceMilliseconds),
           "a broken file is refused");
    picture("broken-file");
    file.remove();
}

void Tour::crop(const QString& photoPath)
{
    const auto open = [&] {
        _application.openPhoto(photoPath);
        expect(QTest::qWaitFor(
                   [this] {
                       return qobject_cast<TOCropViewController*>(
                                  _application.navigation().topScreen()) != nullptr;
                   },
                   patienceMilliseconds),
               "the crop tool opens");
        QTest::qWait(settleMilliseconds);
    };
    open();
    picture("crop-free");
    auto* tool = qobject_cast<TOCropViewController*>(_application.navigation().topScreen());
    if (!tool)
        return;
    const QPointF corner = tool->cropBoxFrame().bottomRight();
    press(corner);
    drag({corner, corner - QPointF(70, 50)});
    screenshot("crop-dragging");
    release(corner - QPointF(70, 50));
    tapItem("Square");
    QTest::qWait(settleMilliseconds);
    picture("crop-square");
    tapItem("Cancel");
    QTest::qWait(settleMilliseconds);
    open(); // this time the whole photo
    tapItem("Done");
}

void Tour::cutOut()
{
    const QPointF start = onPhoto(0.06, 0.08);
    press(start);
    move(start + QPointF(4, 14));
    picture("magnifier");
    release(start + QPointF(4, 14));
    waitForFill();
    picture("first-fill");

    // The dial is dragged to the left, which turns its value up.
    const ToolBars& bars = *editor()->bars();
    const QSizeF window = _application.window().size();
    const QPointF dial(window.width() / 2,
                       window.height() - bars.bottomBarHeight() + bars.dialFrame().center().y());
    press(dial);
    for (int x = 0; x <= 40; x += 4)
        move(dial - QPointF(x, 0));
    picture("dial-turning");
    release(dial - QPointF(40, 0));
    waitForFill();
    picture("dial-turned");

    // Pressed twice, it takes the fill back: a tap leaves two equal levels.
    tapItem("Undo");
    picture("undone");
    press(start);
    release(start);
    waitForFill();
}

void Tour::backgrounds()
{
    tapItem("Next background");
    picture("on-black");
    tapItem("Next background");
    picture("on-white");
    tapItem("Next background");
    tapItem("Show what was removed");
    picture("red-mask");
    tapItem("Show what was removed");
}

void Tour::brushes()
{
    tapItem("Erase");
    picture("erase-chosen");
    press(onPhoto(0.30, 0.30));
    drag({onPhoto(0.30, 0.30), onPhoto(0.45, 0.60), onPhoto(0.60, 0.40), onPhoto(0.70, 0.62)});
    picture("erasing");
    release(onPhoto(0.70, 0.62));
    picture("erased");
    tapItem("Restore");
    press(onPhoto(0.30, 0.30));
    drag({onPhoto(0.30, 0.30), onPhoto(0.45, 0.60), onPhoto(0.52, 0.50)});
    picture("restoring");
    release(onPhoto(0.52, 0.50));
    picture("restored");
    tapItem("Undo");
    tapItem("Undo");
    picture("strokes-undone");
}

void Tour::brushPanel()
{
    tapItem("Brush settings");
    picture("brush-panel");
    tapItem("Triangle");
    BrushPanelView* panel = editor()->brushAdjustView();
    expect(panel != nullptr, "the brush panel is open");
    if (!panel)
        return;
    panel->offsetSlider()->moveTo(0.6);
    panel->softnessSlider()->moveTo(0.35);
    QTest::qWait(100);
    screenshot("brush-preview");
    tap(onPhoto(0.5, 0.5)); // outside the panel: it closes
    press(onPhoto(0.5, 0.7));
    drag({onPhoto(0.5, 0.7), onPhoto(0.6, 0.75)});
    picture("painting-above-the-finger");
    release(onPhoto(0.6, 0.75));
    tapItem("Undo");
    tapItem("Brush settings");
    QTest::qWait(settleMilliseconds);
    tapItem("Circle");
    panel->offsetSlider()->moveTo(0.0);
    panel->softnessSlider()->moveTo(0.1);
    tap(onPhoto(0.5, 0.5));
}

void Tour::twoFingers()
{
    const QPointF a = onPhoto(0.35, 0.5);
    const QPointF b = onPhoto(0.65, 0.5);
    press(a, 0);
    press(b, 1);
    moveBoth(a, a + QPointF(-30, -60), b, b + QPointF(10, 70));
    picture("zoomed-and-turned");
    releaseBoth(a + QPointF(-30, -60), b + QPointF(10, 70));
    tapItem("Invert");
    picture("inverted");
    tapItem("Undo");
    const QPointF c = a + QPointF(-30, -60);
    const QPointF d = b + QPointF(10, 70);
    press(c, 0);
    press(d, 1);
    moveBoth(c, a, d, b);
    releaseBoth(a, b);
    tapItem("Magic wand");
}

void Tour::save()
{
    tapItem("Save the cut-out");
    expect(QTest::qWaitFor([this] { return editor()->saveButton()->isEnabled(); },
                           patienceMilliseconds),
           "the cut-out is saved");
    picture("saved");
}

void Tour::leave()
{
    tapItem("Start over");
    picture("asked-before-leaving");
    editor()->alert()->buttonPressed(true);
    expect(QTest::qWaitFor([this] { return editor() == nullptr; }, patienceMilliseconds),
           "the editor is left");
    picture("first-screen-again");
}

void Tour::picture(const char* name)
{
    QTest::qWait(settleMilliseconds);
    screenshot(name);
}

void Tour::screenshot(const char* name)
{
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(_folder)
                             .arg(++_pictures, 2, 10, QLatin1Char('0'))
                             .arg(QLatin1String(name));
    expect(_application.window().grabWindow().save(file), name);
}

void Tour::tapItem(const char* accessibleName)
{
    QQuickItem* item =
        itemNamed(_application.window().contentItem(), QString::fromLatin1(accessibleName));
    expect(item != nullptr, accessibleName);
    if (!item)
        return;
    const QPointF centre = item->mapToScene(item->boundingRect().center());
    press(centre);
    release(centre);
    QTest::qWait(50);
}

void Tour::press(QPointF point, int finger)
{
    auto event = QTest::touchEvent(&_application.window(), _finger.get());
    for (int i = 0; i < finger; ++i)
        event.stationary(i);
    event.press(finger, point.toPoint()).commit();
    QTest::qWait(20);
}

void Tour::move(QPointF point)
{
    QTest::touchEvent(&_application.window(), _finger.get()).move(0, point.toPoint());
    QTest::qWait(10);
}

void Tour::release(QPointF point)
{
    QTest::touchEvent(&_application.window(), _finger.get()).release(0, point.toPoint());
    QTest::qWait(20);
}

void Tour::tap(QPointF point)
{
    press(point);
    release(point);
    QTest::qWait(settleMilliseconds);
}

void Tour::drag(std::initializer_list<QPointF> points)
{
    constexpr int steps = 12;
    for (const QPointF* to = points.begin() + 1; to < points.end(); ++to)
        for (int i = 1; i <= steps; ++i)
            move(*(to - 1) + (*to - *(to - 1)) * (double(i) / steps));
}

void Tour::moveBoth(QPointF first, QPointF firstTo, QPointF second, QPointF secondTo)
{
    constexpr int steps = 15;
    for (int i = 1; i <= steps; ++i) {
        const double t = double(i) / steps;
        QTest::touchEvent(&_application.window(), _finger.get())
            .move(0, (first + (firstTo - first) * t).toPoint())
            .move(1, (second + (secondTo - second) * t).toPoint());
        QTest::qWait(10);
    }
}

void Tour::releaseBoth(QPointF first, QPointF second)
{
    QTest::touchEvent(&_application.window(), _finger.get())
        .release(0, first.toPoint())
        .release(1, second.toPoint());
    QTest::qWait(20);
}

QPointF Tour::onPhoto(double x, double y) const
{
    const EditorCanvas& canvas = editor()->engine()->canvas;
    const QSizeF view = canvas.viewSize();
    const QSizeF shown = canvas.fgImage.size * canvas.fgImage.scale / canvas.unitsPerPoint();
    return {view.width() / 2 + (x - 0.5) * shown.width(),
            view.height() / 2 + (y - 0.5) * shown.height()};
}

void Tour::waitForFill()
{
    expect(QTest::qWaitFor([this] { return editor()->engine()->canvas.readySurface() != nullptr; },
                           patienceMilliseconds),
           "the fill ends");
}

void Tour::expect(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "tour: failed at: %s\n", what);
    _succeeded = false;
}

ViewController* Tour::editor() const
{
    return qobject_cast<ViewController*>(_application.navigation().topScreen());
}

} // namespace pelmira
