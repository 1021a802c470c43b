#include "EditorScreen.h"
#include "controls/Alert.h"
#include "controls/ZKLScrollDial.h"
#include "export/SaveViewController.h"
#include "mask_editor/screen/BackgroundPreview.h"
#include "mask_editor/screen/KeyboardAim.h"
#include "mask_editor/screen/ToolBars.h"
#include "mask_editor/surface/RenderOut.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/RunLoop.h"
#include "platform/pixels/AlphaPlane.h"
#include "platform/text/LocalizedStrings.h"
#include "support/EngineFixture.h"
#include "support/Fingers.h"
#include "support/Masks.h"
#include "support/WaitFor.h"

#include <array>
#include <functional>

namespace pelmira {
namespace {

using test::Plane;

const Plane untouched(std::size_t{200} * 200, 255);

// The whole screen but for its layout file, which needs a window.
struct Editor : testing::Test {
    void SetUp() override
    {
        editor.bars().setBottomBarWidth(358); // of the dial
        editor.show(discImage(200, 200), view);
        ASSERT_TRUE(settle());
    }

    MaskEditorEngine& engine() { return *editor.engine(); }
    std::size_t levels() { return engine().history.levels(); }

    bool settle()
    {
        return drainUntil([this] { return engine().canvas.readySurface() != nullptr; });
    }
    Plane alpha()
    {
        OGLESMappedTexture& surface = *engine().canvas.fgMappedTexture;
        Plane plane(std::size_t(surface.width()) * surface.height());
        EXPECT_TRUE(surface.lockTexture());
        copyAlphaPlane(surface.lockedPixels(), plane.data());
        surface.unlockTexture();
        return plane;
    }

    /// With the photo kept, and the mask from now on.
    void keepWork()
    {
        work.saveWorkingImage(discImage(200, 200));
        work.finishSaving();
        editor.setResumeWorkHelper(&work);
    }
    Plane savedPlane() const
    {
        const auto entry = work.savedWorkUndoEntry();
        return entry ? test::planeOf(*entry) : Plane();
    }

    const QPointF centre{195, 422};
    TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    ResumeWorkHelper work{folder.path(), defaults};
    OffscreenGLView view{{390, 844}, 1.0};
    EditorScreen editor{defaults, [] { return GLContext::surfaceless(); }};
    test::Fingers<TouchResponder> fingers{editor.touches()};
};

TEST_F(Editor, StartsWithTheWandWhoseSessionAndDialLastUntilItIsChosenAnew)
{
    EXPECT_TRUE(editor.button("wand").isSelected());
    ZKLScrollDial* const tolerance = &editor.dial();
    editor.press("erasor");
    EXPECT_FALSE(editor.button("wand").isSelected());
    // The keys for the brush's size leave the tolerance alone.
    editor.press("wand");
    EXPECT_EQ(&editor.dial(), tolerance);
    editor.stepBrushSize(3);
    EXPECT_EQ(tolerance->value(), 0.2);
    editor.press("replace");
    editor.stepBrushSize(3);
    EXPECT_NEAR(editor.dial().value(), 0.2, 1e-6); // of 0.14

    // The pen swaps the brushes, and from the wand goes to erase.
    editor.press("wand");
    for (const EditorMode mode : {ModeErase, ModeReplace, ModeErase}) {
        editor.touches().pencilInteractionDidTap();
        EXPECT_EQ(editor.mode(), mode);
    }

    editor.press("wand");
    fingers.tap(centre);
    ASSERT_TRUE(settle());
    ASSERT_TRUE(engine().wand.hasFloodFillSession());
    editor.press("wand"); // already selected: nothing ends
    EXPECT_TRUE(engine().wand.hasFloodFillSession());
    editor.press("erasor");
    EXPECT_TRUE(engine().wand.hasFloodFillSession());
    editor.press("wand");
    EXPECT_FALSE(engine().wand.hasFloodFillSession());
}

TEST_F(Editor, ASecondViewDidAppearKeepsTheMask)
{
    editor.press("invertMask");
    const Plane inverted = alpha();
    EXPECT_EQ(inverted, Plane(200 * 200, 0));
    editor->viewDidAppear(true);
    EXPECT_EQ(alpha(), inverted);
    EXPECT_TRUE(editor.button("undo").isEnabled());
    editor.press("undo");
    EXPECT_EQ(alpha(), untouched);
    EXPECT_FALSE(editor.button("undo").isEnabled());
    editor.press("invertMask");
    editor->didReceiveMemoryWarning();
    EXPECT_EQ(levels(), 0U);
}

TEST_F(Editor, GoesOnWithTheMaskThatWasSavedWhenItWentToTheBackground)
{
    keepWork();
    fingers.tap(centre);
    ASSERT_TRUE(settle());
    const Plane mask = alpha();
    EXPECT_NE(mask, untouched);
    const std::size_t levelsBefore = levels();
    editor->applicationDidEnterBackground();
    EXPECT_EQ(levels(), levelsBefore); // the snapshot is no level of undo
    work.finishSaving();
    ASSERT_TRUE(work.hasSavedWork());

    editor = EditorScreen(defaults, [] { return GLContext::surfaceless(); });
    editor.setResumeWorkHelper(&work);
    OffscreenGLView otherView({390, 844}, 1.0);
    editor.show(work.savedWorkImage(), otherView);
    ASSERT_TRUE(settle());
    EXPECT_EQ(alpha(), mask);
    EXPECT_FALSE(editor.button("undo").isEnabled());

    // Starting over gives the work up, if that is what is wanted.
    bool left = false;
    editor.popBlock() = [&left] { left = true; };
    editor.press("back");
    editor.alert().buttonPressed(false);
    EXPECT_TRUE(work.hasSavedWork() && !left);
    editor.press("back");
    editor.alert().buttonPressed(true);
    EXPECT_TRUE(!work.hasSavedWork() && left);
    editor = {}; // its view goes before it
}

// Closed, asked to go or left for another window, while a fill has the surface.
TEST_F(Editor, AFillThatRunsWhenTheUserLeavesIsInTheSavedMask)
{
    editor.setResumeWorkHelper(&work);
    const std::function<void()> ways[] = {[this] { editor->applicationDidEnterBackground(); },
                                          [this] { editor->applicationWillResignActive(); }};
    for (const auto& leave : ways) {
        fingers.tap(centre);
        ASSERT_EQ(engine().canvas.readySurface(), nullptr);
        leave();
        EXPECT_TRUE(editor->hasUnfinishedWork());
        ASSERT_TRUE(drainUntil([this] { return !editor->hasUnfinishedWork(); }));
        work.finishSaving();
        EXPECT_EQ(savedPlane(), alpha());
        editor.press("undo");
        editor.press("undo");
        EXPECT_NE(savedPlane(), alpha());
    }
}

TEST_F(Editor, WhatTheGPUDoesNotGiveBackIsToldAndTheLastSavedMaskStays)
{
    editor.setResumeWorkHelper(&work);
    editor->applicationWillResignActive();
    work.finishSaving();
    const Plane before = savedPlane();
    editor.press("erasor");
    fingers.stroke(centre, centre + QPointF(40, 0));
    ASSERT_TRUE(engine().canvas.context()->makeCurrent());
    for (GLuint name = 1; name < 50; ++name)
        glDeleteFramebuffers(1, &name);
    for (int i = 0; i < 2; ++i) {
        editor->applicationWillResignActive();
        work.finishSaving();
        EXPECT_EQ(savedPlane(), before);
        EXPECT_FALSE(engine().canvas.fgMappedTexture->lockTexture()) << "old bytes taken for true";
    }
    EXPECT_TRUE(editor.alert().isOpen());
    EXPECT_TRUE(renderCutOut(engine().canvas.fgMappedTexture.get()).isNull());
}

TEST_F(Editor, WorkThatCannotBeWrittenIsToldOnceAndKeptWhenThereIsRoom)
{
    const QString place = work.folderPath();
    const auto leave = [&] {
        editor->applicationWillResignActive();
        work.finishSaving();
        EXPECT_TRUE(drainUntil([] { return !drainMainQueue(); }));
    };
    const auto touch = [&] {
        editor.press("invertMask");
        leave();
    };
    const auto block = [&](bool isBlocked) { // nobody can write into a file, not even root
        ASSERT_TRUE(isBlocked ? QDir(place).removeRecursively() : QFile::remove(place));
        QFile file(place);
        ASSERT_TRUE(!isBlocked || file.open(QIODevice::WriteOnly));
    };
    editor.press("back"); // a question that stands comes first
    block(true);
    work.saveWorkingImage(discImage(200, 200));
    editor.setResumeWorkHelper(&work);
    touch();
    EXPECT_EQ(editor.alert().title(), localized("startover.title"));
    editor.alert().dismiss();
    ASSERT_TRUE(waitFor([this] { return editor.alert().isOpen(); }));
    EXPECT_EQ(editor.alert().message(), localized("homescreen.error.workIsNotKept").arg(place));
    editor.alert().dismiss();
    touch();
    EXPECT_FALSE(editor.alert().isOpen()) << "told twice";
    block(false);
    leave();
    EXPECT_TRUE(work.hasSavedWork()) << "the photo is tried again, too";
    EXPECT_EQ(savedPlane(), alpha());
    block(true);
    touch();
    EXPECT_TRUE(editor.alert().isOpen());
}

TEST_F(Editor, OpensTheSaveScreenAndFromThereGoesHomeWithoutItsWork)
{
    keepWork();
    editor->applicationDidEnterBackground();
    work.finishSaving();
    ASSERT_TRUE(work.hasSavedWork());
    std::shared_ptr<SaveViewController> saveView;
    std::function<void()> dismissed;
    int pops = 0;
    editor.popBlock() = [&pops] { ++pops; };
    editor.presentSaveViewBlock() = [&](std::shared_ptr<SaveViewController> shown) {
        saveView = std::move(shown);
        saveView->dismissBlock = [&](std::function<void()> end) { dismissed = std::move(end); };
    };
    editor.press("save");
    editor.press("save");
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("numSaves")), 2); // visits, not files
    saveView->viewDidAppear(true);
    ASSERT_TRUE(drainUntil([&] { return !saveView->image().isNull(); }));
    EXPECT_EQ(saveView->image().size(), QSize(200, 200));

    saveView->doneButtonPressed();
    EXPECT_FALSE(dismissed); // back to the work
    EXPECT_TRUE(work.hasSavedWork());
    saveView->homeButtonTapped();
    EXPECT_FALSE(work.hasSavedWork()); // at once
    EXPECT_EQ(pops, 0);
    ASSERT_TRUE(dismissed);
    dismissed();
    EXPECT_EQ(pops, 1);
}

TEST_F(Editor, GivesTheCutOutRetouchedAndKeepsSurfaceAndMask)
{
    fingers.tap(centre);
    ASSERT_TRUE(settle()); // the disc is erased
    const Plane mask = alpha();
    std::vector<QImage> images;
    std::atomic<int> runs = 0;
    const auto retouch = [&](SaveViewControllerDelegate::Retouch how) {
        editor.delegate().fullSizeImageRetouchedBy(
            std::move(how), [&](const QImage& image) { images.push_back(image); });
    };
    const auto count = [&](const PixelSpan&) { return ++runs > 0; };
    editor.delegate().fullSizeImageWithCompletion(
        [&](const QImage& image) { images.push_back(image); });
    retouch(count);
    ASSERT_TRUE(drainUntil([&] { return images.size() == 2; }));
    EXPECT_EQ(images[0], images[1]);

    std::uint32_t erased = 0;
    retouch([&, main = std::this_thread::get_id()](const PixelSpan& pixels) {
        EXPECT_NE(std::this_thread::get_id(), main);
        erased = pixels.row(100)[100];
        pixels.row(100)[100] = 0x80FF8040; // half seen
        return true;
    });
    ASSERT_TRUE(drainUntil([&] { return images.size() == 3; }));
    EXPECT_EQ(qAlpha(erased), 0);
    EXPECT_NE(erased, 0U); // its colour is still there
    EXPECT_EQ(images[2].pixel(100, 100), qPremultiply(0x80FF8040));
    EXPECT_EQ(qAlpha(images[1].pixel(100, 100)), 0);
    EXPECT_EQ(alpha(), mask);

    retouch([](const PixelSpan&) { return false; });
    ASSERT_TRUE(drainUntil([&] { return images.size() == 4; }));
    EXPECT_TRUE(images[3].isNull());
    // A retouch may outlive the screen; nobody is told then.
    const int before = runs;
    retouch(count);
    editor = {};
    ASSERT_TRUE(drainUntil([&] { return runs > before; }));
    while (drainMainQueue()) {
    }
    EXPECT_EQ(images.size(), 4U);
}

TEST_F(Editor, KeysDoWithTheWandWhatAFingerDoes)
{
    KeyboardAim& aim = editor.keyboardAim();
    const OverlayRequests& shown = engine().overlays;
    aim.move(0, -1, false);
    EXPECT_TRUE(shown.drawWandZoom);
    EXPECT_EQ(shown.brushPosition, centre - QPointF(0, 5));
    EXPECT_EQ(editor.changeBackgroundView().alpha(), 0.0);

    // The photo is moved under the aim, which stays.
    const QPointF under = engine().canvas.maskPosForScreenPos(shown.brushPosition);
    aim.zoomBy(2);
    EXPECT_NEAR(engine().canvas.fgImage.scale, 2.0, 1e-9);
    EXPECT_NEAR(engine().canvas.maskPosForScreenPos(shown.brushPosition).y(), under.y(), 1e-6);
    aim.zoomBy(0.5);
    aim.leave();
    EXPECT_FALSE(shown.drawWandZoom);
    EXPECT_EQ(editor.changeBackgroundView().alpha(), 1.0);

    for (int i = 0; i < 3; ++i)
        aim.move(-1, -1, true);
    aim.press();
    ASSERT_TRUE(settle());
    const Plane byKeys = alpha();
    EXPECT_NE(byKeys, untouched);
    EXPECT_EQ(levels(), 2U);
    editor.press("undo");
    fingers.tap({75, 297});
    ASSERT_TRUE(settle());
    EXPECT_EQ(alpha(), byKeys);

    for (int i = 0; i < 100; ++i)
        aim.move(-1, 1, true);
    EXPECT_EQ(shown.brushPosition, QPointF(0, 844));
    fingers.tap(centre); // a finger takes over, and leaves the aim where it landed
    ASSERT_TRUE(settle());
    aim.move(1, 0, false);
    EXPECT_EQ(shown.brushPosition, centre + QPointF(5, 0));
}

TEST_F(Editor, ABrushPaintsWithTheArrowsWhileItIsHeldDown)
{
    KeyboardAim& aim = editor.keyboardAim();
    editor.press("erasor");
    aim.move(-1, 0, true);
    EXPECT_TRUE(engine().overlays.drawBrush);
    aim.hold();
    EXPECT_EQ(levels(), 0U);
    aim.move(1, 0, true);
    aim.hold(); // a key that repeats
    aim.move(1, 0, true);
    aim.release();
    aim.move(0, 1, true);
    const Plane byKeys = alpha();
    EXPECT_EQ(levels(), 1U);
    EXPECT_NE(byKeys, untouched);

    editor.press("undo");
    fingers.stroke({155, 422}, {235, 422});
    EXPECT_EQ(alpha(), byKeys);

    // Enter puts it down and lifts it; so does taking another tool.
    for (const std::size_t expected : {2U, 2U, 3U}) {
        aim.press();
        aim.move(1, 0, true);
        EXPECT_EQ(levels(), expected);
    }
    editor.press("replace");
    EXPECT_EQ(editor.changeBackgroundView().alpha(), 1.0);
    aim.move(-1, 0, true);
    EXPECT_EQ(levels(), 3U);
}

TEST_F(Editor, AnAimThatStandsHoldsUpNothing)
{
    keepWork();
    KeyboardAim& aim = editor.keyboardAim();
    for (int i = 0; i < 3; ++i)
        aim.move(-1, -1, true);
    aim.press();
    ASSERT_TRUE(settle());
    const Plane filled = alpha();
    aim.move(1, 0, false);
    EXPECT_TRUE(drainUntil([&] {
        passTime(2);
        work.finishSaving();
        return savedPlane() == filled;
    }));

    // What changes the picture takes it away: it would stand there unseen.
    double& scale = engine().canvas.fgImage.scale;
    const std::array<std::function<void()>, 5> changes{
        [&] { editor.press("showMask"); },
        [&] { editor.press("undo"); },
        [&] { editor.changeBackgroundViewTapped(); },
        [&] {
            editor->viewWillTransitionToSize({844, 390});
        },
        [&] {
            editor.touches().viewStepped({centre, {}, 2.0, 0.0});
            EXPECT_EQ(scale, 2.0);
        },
    };
    for (const char* tool : {"wand", "erasor"}) {
        editor.press(tool);
        for (const auto& change : changes) {
            scale = 1.0;
            aim.move(1, 0, true);
            if (engine().overlays.drawBrush)
                aim.press(); // down
            change();
            EXPECT_FALSE(engine().overlays.drawWandZoom || engine().overlays.drawBrush);
            EXPECT_EQ(editor.changeBackgroundView().alpha(), 1.0);
            ASSERT_TRUE(settle());
        }
    }
}

TEST_F(Editor, WithoutGLShowsNothingAndSurvivesEveryButton)
{
    editor = EditorScreen(defaults, [] { return nullptr; });
    OffscreenGLView dark({390, 844}, 1.0);
    editor.show(discImage(20, 20), dark);
    test::Fingers<TouchResponder>(editor.touches()).tap({10, 10});
    editor.press("erasor");
    editor.press("invertMask");
    editor.press("showMask");
    editor.press("undo");
    editor.press("brush");
    editor.press("save");
    editor.changeBackgroundViewTapped();
    editor.touches().viewStepped({{5, 5}, {1, 1}, 2, 1});
    editor->didReceiveMemoryWarning();
    EXPECT_FALSE(editor.button("save").isEnabled());
}

} // namespace
} // namespace pelmira
