#include "Tour.h"

#include "export/SaveViewController.h"

#include <QFile>
#include <QTest>

namespace pelmira {

void Tour::openSaveScreen()
{
    tapItem("Save the cut-out");
    waitFor([this] { return saveView() && saveView()->savePNGButton()->isEnabled(); },
            "the save screen shows the cut-out");
}

void Tour::share(const char* button, const QString& file)
{
    tapItem(button);
    waitFor([this] { return saveView()->alert()->isOpen(); }, "the share sheet opens");
    expect(QFile::exists(file), "the shared file is there");
}

void Tour::save()
{
    openSaveScreen();
    if (!saveView())
        return;
    picture("save-screen");
    tapItem("Save transparent");
    picture("save-dialog");
    tapItem("Cancel");
    QTest::qWait(400);
    saveAs("Save with background", "High resolution");
    picture("saved-first-time");
    saveAs("Save with background", "Low resolution");
    saveAs("Save transparent", "High resolution");
    saveAs("Save transparent", "Low resolution");
    picture("saved");
    if (saveView()->isHeifContainerVisible()) {
        tapItem("Use HEIF");
        tapItem("Save transparent");
        QTest::qWait(400);
        tapItem("High resolution");
        QTest::qWait(300);
        screenshot("saving-heif");
        waitFor([this] { return saveView()->progressHUD()->isSuccess(); }, "HEIF is saved");
        saveAs("Save transparent", "Low resolution");
        picture("saved-heif");
        tapItem("Use HEIF");
    }
    saveView()->progressHUD()->dismiss();
    share("Picture with background to another app",
          saveView()->sharing().file().shareImagePathJPG());
    saveView()->alert()->dismiss();
    QTest::qWait(400);
    share("Transparent picture to another app", saveView()->sharing().file().shareImagePathPNG());
    picture("share-sheet");
    saveView()->alert()->dismiss();
    QTest::qWait(400);
    tapItem("Done");
    waitFor([this] { return editor() != nullptr; }, "the editor is back");
    picture("back-in-the-editor");
}

} // namespace pelmira
