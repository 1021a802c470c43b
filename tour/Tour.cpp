#include "Tour.h"

#include "controls/Alert.h"
#include "controls/BrushPanelView.h"
#include "crop/TOCropViewController.h"
#include "help/ZKLHelpController.h"
#include "intake/ZKLPhotoPicker.h"
#include "persistence/resume/ResumeWorkHelper.h"

#include <QFile>
#include <QTest>

namespace pelmira {

bool Tour::play(const QString& photoPath, QSize windowSize)
{
    launch(windowSize);
    firstScreen();
    settings();
    camera();
    pickPhoto();
    crop(photoPath);
    waitForEditor();
    if (!succeeded())
        return false;
    picture("photo-opened");
    cutOut();
    backgrounds();
    brushes();
    brushPanel();
    twoFingers();
    help();
    save();
    compose();
    leave();
    eventLog();
    return succeeded();
}

bool Tour::beginWork(const QString& photoPath, QSize windowSize)
{
    launch(windowSize);
    openWhole(photoPath);
    waitForEditor();
    if (!succeeded())
        return false;
    tap(onPhoto(0.06, 0.08));
    waitForFill();
    picture("about-to-be-killed");
    _application.navigation().applicationDidEnterBackground();
    ResumeWorkHelper::shared().finishSaving();
    return succeeded();
}

bool Tour::resumeWork(QSize windowSize)
{
    launch(windowSize);
    waitFor([this] { return _application.homeScreen().resumeView() != nullptr; },
            "unfinished work is offered");
    picture("resume-offer");
    tapItem("Yes");
    waitForEditor();
    picture("resumed");
    return succeeded();
}

void Tour::firstScreen()
{
    picture("home");
    const QString broken = folder() + QStringLiteral("/broken.jpg");
    QFile file(broken);
    expect(file.open(QIODevice::WriteOnly) && file.write("not a photo") > 0, "a broken file");
    file.close();
    PhotoLoader& loader = *_application.homeScreen().loader();
    _application.homeScreen().openPhoto(broken);
    waitFor([&] { return !loader.isBusy(); }, "a broken file is refused");
    picture("broken-file");
    file.remove();
}

// Most machines that play the tour have none, which the screen is to say.
void Tour::camera()
{
    tapItem("Take a photo");
    if (!waitForScreen<CameraPicker>("the camera opens"))
        return;
    picture("camera");
    tapItem("Cancel");
    waitForScreen<NewHomeScreenVC>("the camera is left");
}

void Tour::pickPhoto()
{
    tapItem("Choose a photo");
    auto* picker = waitForScreen<ZKLPhotoPicker>("the library opens");
    if (!picker)
        return;
    waitFor([&] { return picker->photos()->count() > 0; }, "the library has photos");
    settle();
    picture("library");
    tapItem("pear 1.jpg");
    waitForScreen<TOCropViewController>("the picked photo is cropped");
    tapItem("Cancel");
    waitForScreen<ZKLPhotoPicker>("a cancelled crop leaves the library up");
    tapItem("Cancel");
    waitForScreen<NewHomeScreenVC>("the library is left");
}

void Tour::crop(const QString& photoPath)
{
    _application.homeScreen().openPhoto(photoPath);
    auto* tool = waitForScreen<TOCropViewController>("the crop tool opens");
    if (!tool)
        return;
    picture("crop-free");
    const QPointF corner = tool->cropBoxFrame().bottomRight();
    press(corner);
    drag({corner, corner - QPointF(70, 50)});
    screenshot("crop-dragging");
    release(corner - QPointF(70, 50));
    tapItem("Square, Instagram");
    settle();
    picture("crop-square");
    tapItem("Cancel");
    waitForScreen<NewHomeScreenVC>("the crop tool is left");
    openWhole(photoPath);
}

void Tour::openWhole(const QString& photoPath)
{
    _application.homeScreen().openPhoto(photoPath);
    if (waitForScreen<TOCropViewController>("the crop tool opens"))
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
    const QPointF middle = dial();
    press(middle);
    for (int x = 0; x <= 40; x += 4)
        move(middle - QPointF(x, 0));
    picture("dial-turning");
    release(middle - QPointF(40, 0));
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
    BrushPanelView* panel = editor().brushAdjustView();
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
    settle();
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

void Tour::help()
{
    tapItem("Help");
    const auto shown = [this] {
        return dynamic_cast<ZKLHelpController*>(_application.navigation().topScreen());
    };
    waitFor([&] { return shown() && !shown()->page().isEmpty(); }, "the help page is shown");
    picture("help");
    tapItem("Done");
    waitFor([this] { return editor() != nullptr; }, "help is closed");
    settle();
}

void Tour::leave()
{
    tapItem("Start over");
    picture("asked-before-leaving");
    tapItem("Yes");
    waitFor([this] { return editor() == nullptr; }, "the editor is left");
    picture("home-again");
}

} // namespace pelmira
