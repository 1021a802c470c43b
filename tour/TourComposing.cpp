#include "Tour.h"

#include "background_editor/colors/ChangeColorVC.h"
#include "background_editor/screen/EditBackgroundVC.h"
#include "export/SaveViewController.h"

#include <QTest>

namespace pelmira {

bool Tour::composeOnly(const QString& photoPath, QSize windowSize)
{
    launch(windowSize);
    openWhole(photoPath);
    waitForEditor();
    if (!succeeded())
        return false;
    tap(onPhoto(0.06, 0.08));
    waitForFill();
    compose();
    return succeeded();
}

void Tour::compose()
{
    openSaveScreen();
    if (!saveView())
        return;
    chooseColour();
    composeOnTurnedObject();
    composeOnMixedColour();
    composeOnWideCanvas();
    composeOnPattern();
    composeOnPhoto();
    tapItem("Done");
    waitFor([this] { return editor() != nullptr; }, "the editor is back");
    settle();
}

void Tour::chooseColour()
{
    tapItem("Change background colour");
    if (!waitForScreen<ChangeColorVC>("the colour screen opens"))
        return;
    picture("colour-screen");
    tapAt("Colour strip", 0.45, 0.5);
    tapAt("Hue and lightness", 0.6, 0.35);
    picture("colour-chosen");
    tapItem("Done");
    waitFor([this] { return saveView() != nullptr; }, "the colour is taken");
    picture("save-screen-coloured");
}

void Tour::chooseRatio(const char* title)
{
    tapItem("CANVAS");
    settle();
    tapItem(title);
    settle();
}

void Tour::saveComposition()
{
    tapItem("Save");
    waitFor([this] { return saveView() && saveView()->progressHUD()->isSuccess(); },
            "the composition is saved");
}

// The object turned, made smaller and moved, by two fingers and by its handles.
void Tour::composeOnTurnedObject()
{
    openBackgroundEditor();
    if (!backgroundEditor())
        return;
    picture("background-editor");
    chooseRatio("4:5");
    picture("canvas-panel");
    tap(onCanvas(0.5, 0.5));
    picture("object-selected");
    const QPointF a = onCanvas(0.35, 0.5);
    const QPointF b = onCanvas(0.65, 0.5);
    press(a, 0);
    press(b, 1);
    moveBoth(a, onCanvas(0.4, 0.3), b, onCanvas(0.6, 0.62));
    picture("object-turned");
    releaseBoth(onCanvas(0.4, 0.3), onCanvas(0.6, 0.62));
    tap(onCanvas(0.05, 0.95));
    saveComposition();
    picture("composition-saved");
}

void Tour::composeOnMixedColour()
{
    openBackgroundEditor();
    if (!backgroundEditor())
        return;
    tapItem("COLOUR");
    picture("colour-panel");
    tapAt("Colour strip", 0.62, 0.5);
    pressAt("Hue and lightness", 0.55, 0.3);
    picture("colour-under-the-finger");
    releaseAt("Hue and lightness", 0.55, 0.3);
    tapItem("Mix the colour");
    picture("mixer");
    tapAt("Red", 0.8, 0.5);
    tapItem("Keep as favourite");
    picture("mixer-favourite");
    tapItem("Done");
    settle();
    tap(onCanvas(0.5, 0.5));
    const StickerView& object = *backgroundEditor()->workAreaView()->fgStickerView();
    const QPointF origin = backgroundEditor()->workAreaFrame().topLeft();
    const QPointF corner =
        object.pointToSuperview({object.bounds().width(), object.bounds().height()}) + origin;
    const QPointF inside = onCanvas(0.62, 0.75);
    press(corner);
    drag({corner, inside});
    picture("object-resized");
    release(inside);
    tap(onCanvas(0.05, 0.05));
    saveComposition();
}

void Tour::composeOnWideCanvas()
{
    openBackgroundEditor();
    if (!backgroundEditor())
        return;
    chooseRatio("828x315");
    press(onCanvas(0.5, 0.5));
    drag({onCanvas(0.5, 0.5), onCanvas(0.9, 0.6)});
    picture("object-overhanging");
    release(onCanvas(0.9, 0.6));
    tapItem("Close panel");
    picture("panel-closed");
    saveComposition();
    settle();
}

} // namespace pelmira
