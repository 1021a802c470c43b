#include "kills/Wanderer.h"

#include "background_editor/screen/EditBackgroundVC.h"
#include "crop/TOCropViewController.h"
#include "export/SaveViewController.h"
#include "mask_editor/surface/RenderOut.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "settings/SettingsVC.h"

#include <QTest>

#include <cstdlib>
#include <iterator>
#include <utility>

namespace pelmira::test {
namespace {

constexpr int patience = 60000;    // milliseconds; the machine may be busy with other things
constexpr int promisedRest = 2000; // milliseconds after which what was done is kept
constexpr int quiet = 200;         // milliseconds
constexpr int somethingMissing = 3;

} // namespace

Wanderer::Wanderer(AppDelegate& application, const QString& folder, unsigned seed,
                   QStringList photos)
    : AppVisitor(application, folder, 0), _journal(folder + QStringLiteral("/journal")),
      _random(seed), _photos(std::move(photos))
{
}

void Wanderer::wander(bool mustOffer)
{
    launch({390, 844});
    first(mustOffer);
    for (;;) {
        if (editor())
            inEditor();
        else
            atHome();
    }
}

void Wanderer::must(const std::function<bool()>& condition, const char* what)
{
    expect(QTest::qWaitFor(condition, patience), what);
    if (!succeeded())
        std::_Exit(somethingMissing);
}

void Wanderer::tapUntil(const char* name, const std::function<bool()>& there)
{
    must(
        [&] {
            if (there())
                return true;
            if (isShown(name))
                tapItem(name);
            return QTest::qWaitFor(there, 600);
        },
        name);
}

void Wanderer::first(bool mustOffer)
{
    NewHomeScreenVC& home = _application.homeScreen();
    must([&] { return (home.resumeView() != nullptr) == mustOffer; },
         mustOffer ? "work is offered" : "nothing is offered");
    if (!mustOffer)
        return;
    if (random(4) == 0) {
        tapUntil("No", [&] { return home.resumeView() == nullptr; });
        return;
    }
    tapUntil("Yes", [&] { return editor() && editor().engine()->canvas.isOpen(); });
    note();
}

void Wanderer::atHome()
{
    random(4) == 0 ? settings() : openPhoto();
}

void Wanderer::settings()
{
    tapUntil("Settings", [this] { return topScreen<SettingsVC>() != nullptr; });
    QTest::qWait(static_cast<int>(random(400)));
    tapText("settings.eventLog.keep");
    tapUntil("Done", [this] { return topScreen<SettingsVC>() == nullptr; });
}

void Wanderer::openPhoto()
{
    must(
        [this] {
            _application.homeScreen().openPhoto(_photos[random(unsigned(_photos.size()))]);
            return QTest::qWaitFor([this] { return topScreen<TOCropViewController>(); }, 5000);
        },
        "the crop tool opens");
    if (random(2) == 0) {
        QTest::qWait(400);
        tapItem("Square, Instagram");
        QTest::qWait(static_cast<int>(random(600)));
    }
    if (random(8) == 0) {
        tapUntil("Cancel", [this] { return !topScreen<TOCropViewController>(); });
        return;
    }
    _journal.note("opening");
    tapUntil("Done", [this] {
        return editor() && editor().engine() && editor().engine()->canvas.isOpen();
    });
    note();
}

void Wanderer::note()
{
    MaskEditorEngine& engine = *editor().engine();
    // A dial that was let go turns on for a moment, and fills again.
    std::uint64_t seen = 0;
    must(
        [&] {
            QTest::qWait(quiet);
            const OGLESMappedTexture* surface = engine.canvas.readySurface();
            return surface && std::exchange(seen, surface->changeCount()) == surface->changeCount();
        },
        "the pixels are at rest");
    const QImage pixels = copyStraightPixels(engine.canvas.readySurface());
    const auto mask = engine.history.getUndoBuffer();
    must([&] { return !pixels.isNull() && mask; }, "photo and mask can be read");
    std::int32_t length = 0;
    const std::uint8_t* plane = mask->originalDataWithLengthPtr(&length);
    _journal.state(Work::of(pixels, plane, static_cast<std::size_t>(length)));
}

void Wanderer::change(const std::function<void()>& act)
{
    _journal.note("acting");
    act();
    note();
}

void Wanderer::inEditor()
{
    static constexpr void (Wanderer::*ways[])() = {
        &Wanderer::fill,   &Wanderer::fill,        &Wanderer::turnDial,    &Wanderer::stroke,
        &Wanderer::stroke, &Wanderer::restOrLeave, &Wanderer::restOrLeave, &Wanderer::save};
    const unsigned way = random(std::size(ways) + 3);
    if (way < std::size(ways))
        (this->*ways[way])();
    else if (way < std::size(ways) + 2)
        change([=, this] { tapItem(way == std::size(ways) ? "Undo" : "Invert"); });
    else if (random(3) == 0)
        giveUp();
}

void Wanderer::fill()
{
    change([this] {
        tapItem("Magic wand");
        const QPointF point = onPhoto(share(), share());
        press(point);
        move(point + QPointF(3, 9));
        release(point + QPointF(3, 9));
    });
}

void Wanderer::turnDial()
{
    change([this] {
        tapItem("Magic wand");
        const QPointF middle = dial();
        const int way = static_cast<int>(random(160)) - 80;
        press(middle);
        for (int i = 1; i <= 10; ++i)
            move(middle + QPointF(way * i / 10.0, 0));
        release(middle + QPointF(way, 0));
    });
}

void Wanderer::stroke()
{
    change([this] {
        tapItem(random(3) == 0 ? "Restore" : "Erase");
        const QPointF from = onPhoto(share(), share());
        const QPointF to = onPhoto(share(), share());
        press(from);
        drag({from, to});
        release(to);
    });
}

void Wanderer::restOrLeave()
{
    if (random(2) == 0)
        QTest::qWait(promisedRest);
    else
        _application.navigation().applicationWillResignActive();
    const ResumeWorkHelper& work = ResumeWorkHelper::shared();
    must([&] { return !work.isSavingMask() && !work.isSavingWorkingImage(); }, "work is written");
    _journal.note("settled");
}

void Wanderer::giveUp()
{
    _journal.note("leaving");
    tapItem("Start over");
    tapUntil("Yes", [this] { return editor() == nullptr; });
    _journal.note("left");
}

void Wanderer::save()
{
    tapUntil("Save the cut-out",
             [this] { return saveView() && saveView()->savePNGButton()->isEnabled(); });
    for (unsigned i = random(3) + 1; i > 0; --i) {
        const unsigned way = random(4);
        way == 0 ? sharePicture() : way == 1 ? compose() : savePicture();
    }
    if (random(8) == 0) {
        _journal.note("leaving");
        tapUntil("Home", [this] { return topScreen<NewHomeScreenVC>() != nullptr; });
        _journal.note("left");
        return;
    }
    tapUntil("Done", [this] { return editor() != nullptr; });
}

void Wanderer::savePicture()
{
    if (random(4) == 0)
        tapItem(random(2) == 0 ? "Use HEIF" : "Clean edges");
    tapUntil(random(2) == 0 ? "Save transparent" : "Save with background",
             [this] { return saveView()->alert()->isOpen(); });
    tapUntil(random(2) == 0 ? "High resolution" : "Low resolution",
             [this] { return !saveView()->alert()->isOpen(); });
    if (random(2) == 0)
        must([this] { return saveView()->progressHUD()->isSuccess(); }, "the picture is saved");
}

void Wanderer::sharePicture()
{
    tapUntil(random(2) == 0 ? "Transparent picture to another app"
                            : "Picture with background to another app",
             [this] { return saveView()->alert()->isOpen(); });
    saveView()->alert()->dismiss();
}

void Wanderer::compose()
{
    tapUntil("Edit background", [this] {
        return backgroundEditor() && backgroundEditor()->workAreaView()->fgStickerView();
    });
    QTest::qWait(400);
    if (random(2) == 0) {
        tapItem("PATTERNS");
        QTest::qWait(500);
        tapItem("Pattern 3");
    }
    const QPointF from = onCanvas(0.5, 0.5);
    press(from);
    drag({from, onCanvas(share(), share())});
    release(from);
    tapUntil("Save", [this] { return saveView() != nullptr; });
}

} // namespace pelmira::test
