#include "export/SaveViewController.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/pixels/AlphaPlane.h"
#include "platform/text/LocalizedStrings.h"
#include "support/EditorScreen.h"
#include "support/Masks.h"

#include <QTest>

namespace pelmira {
namespace {

using test::Plane;

const Plane untouched(std::size_t{200} * 200, 255);

// The whole screen but for its layout file, which needs a window.
class Editor : public ::testing::Test {
protected:
    void SetUp() override
    {
        show(*screen, discImage(200, 200), view);
        ASSERT_TRUE(settle());
    }
    static void show(ViewController& editor, const QImage& photo, OffscreenGLView& view)
    {
        ToolBars& bars = *editor.bars();
        bars.setButtonContainerInitialHeight(106);
        bars.setBottomSafeAreaInset(8);
        bars.setWandButtonMaxY(62);
        bars.setTopBarHeight(56);
        bars.setBottomBarWidth(358);
        editor.setImage(photo);
        editor.setGLView(&view);
        editor.viewDidLoad();
        editor.setViewSize({390, 844});
        editor.viewWillAppear(true);
        view.displayIfNeeded();
        editor.viewDidAppear(true);
    }

    MaskEditorEngine& engine() { return *screen->engine(); }
    std::size_t levels() { return engine().history.levels(); }

    void begin(QPointF at) { screen->touchesBegan(fingersAt({at})); }
    void move(QPointF to) { screen->touchesMoved(fingersAt({to})); }
    void end(QPointF at)
    {
        TouchEvent event = fingersAt({at});
        event.allTouches.back().hasEnded = true;
        screen->touchesEnded(event);
    }
    void tap(QPointF at)
    {
        begin(at);
        end(at);
    }
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

    static Plane savedPlane(const ResumeWorkHelper& work)
    {
        const auto entry = work.savedWorkUndoEntry();
        return entry ? test::planeOf(*entry) : Plane();
    }

    const QPointF centre{195, 422};
    test::TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    OffscreenGLView view{{390, 844}, 1.0};
    std::shared_ptr<ViewController> screen =
        std::make_shared<ViewController>(defaults, [] { return GLContext::surfaceless(); });
};

TEST_F(Editor, StartsWithTheWandAndSwapsControlsWithTheTool)
{
    EXPECT_TRUE(screen->wandButton()->isSelected());
    const ZKLScrollDial* tolerance = screen->dial();
    EXPECT_DOUBLE_EQ(tolerance->value(), 0.2);
    EXPECT_EQ(tolerance->frame(), QRectF(0, 74, 358, 32)); // flush with the bar's lower edge
    screen->erasorButtonPressed();
    EXPECT_FALSE(screen->wandButton()->isSelected());
    EXPECT_NE(screen->dial(), tolerance);
    EXPECT_NEAR(screen->dial()->value(), 0.14, 1e-6);
    EXPECT_EQ(screen->toolTip()->alpha(), 1.0);

    // The keys for the brush's size leave the tolerance alone.
    screen->wandButtonPressed();
    EXPECT_EQ(screen->dial(), tolerance);
    screen->stepBrushSize(3);
    EXPECT_EQ(tolerance->value(), 0.2);
    screen->replaceButtonPressed();
    screen->stepBrushSize(3);
    EXPECT_NEAR(screen->dial()->value(), 0.2, 1e-6);

    // The pen swaps the brushes, and from the wand goes to erase.
    screen->wandButtonPressed();
    for (const EditorMode mode : {ModeErase, ModeReplace, ModeErase}) {
        screen->pencilInteractionDidTap();
        EXPECT_EQ(screen->mode(), mode);
    }
}

TEST_F(Editor, TheDialGoesOnRefiningUntilTheWandIsChosenAnew)
{
    tap(centre);
    ASSERT_TRUE(settle());
    ASSERT_TRUE(engine().wand.hasFloodFillSession());
    screen->wandButtonPressed(); // already selected: nothing ends
    EXPECT_TRUE(engine().wand.hasFloodFillSession());
    screen->erasorButtonPressed();
    EXPECT_TRUE(engine().wand.hasFloodFillSession());
    screen->wandButtonPressed();
    EXPECT_FALSE(engine().wand.hasFloodFillSession());
}

TEST_F(Editor, ASecondViewDidAppearKeepsTheMask)
{
    screen->invertMaskButtonPressed();
    const Plane inverted = alpha();
    EXPECT_EQ(inverted, Plane(200 * 200, 0));
    screen->viewDidAppear(true);
    EXPECT_EQ(alpha(), inverted);
    EXPECT_TRUE(screen->undoButton()->isEnabled());
    screen->undoButtonPressed();
    EXPECT_EQ(alpha(), untouched);
    EXPECT_FALSE(screen->undoButton()->isEnabled());
    screen->invertMaskButtonPressed();
    screen->didReceiveMemoryWarning();
    EXPECT_EQ(levels(), 0U);
}

TEST_F(Editor, GoesOnWithTheMaskThatWasSavedWhenItWentToTheBackground)
{
    ResumeWorkHelper work(folder.path(), defaults);
    work.saveWorkingImage(discImage(200, 200));
    work.finishSaving();
    screen->setResumeWorkHelper(&work);
    tap(centre);
    ASSERT_TRUE(settle());
    const Plane mask = alpha();
    EXPECT_NE(mask, untouched);
    const std::size_t levelsBefore = levels();
    screen->applicationDidEnterBackground();
    EXPECT_EQ(levels(), levelsBefore); // the snapshot is no level of undo
    work.finishSaving();
    ASSERT_TRUE(work.hasSavedWork());

    screen = std::make_shared<ViewController>(defaults, [] { return GLContext::surfaceless(); });
    screen->setResumeWorkHelper(&work);
    OffscreenGLView otherView({390, 844}, 1.0);
    show(*screen, work.savedWorkImage(), otherView);
    ASSERT_TRUE(settle());
    EXPECT_EQ(alpha(), mask);
    EXPECT_FALSE(screen->undoButton()->isEnabled());

    // Starting over gives the work up, if that is what is wanted.
    bool left = false;
    screen->popBlock = [&left] { left = true; };
    screen->backButtonPressed();
    screen->alert()->buttonPressed(false);
    EXPECT_TRUE(work.hasSavedWork() && !left);
    screen->backButtonPressed();
    screen->alert()->buttonPressed(true);
    EXPECT_TRUE(!work.hasSavedWork() && left);
    screen.reset(); // its view goes before it
}

// Closed, asked to go or left for another window, while a fill has the surface.
TEST_F(Editor, AFillThatRunsWhenTheUserLeavesIsInTheSavedMask)
{
    ResumeWorkHelper work(folder.path(), defaults);
    screen->setResumeWorkHelper(&work);
    const std::function<void()> ways[] = {[this] { screen->applicationDidEnterBackground(); },
                                          [this] { screen->applicationWillResignActive(); }};
    for (const auto& leave : ways) {
        tap(centre);
        ASSERT_EQ(engine().canvas.readySurface(), nullptr);
        leave();
        EXPECT_TRUE(screen->hasUnfinishedWork());
        ASSERT_TRUE(drainUntil([this] { return !screen->hasUnfinishedWork(); }));
        work.finishSaving();
        EXPECT_EQ(savedPlane(work), alpha());
        screen->undoButtonPressed();
        screen->undoButtonPressed();
        EXPECT_NE(savedPlane(work), alpha());
    }
}

TEST_F(Editor, WhatTheGPUDoesNotGiveBackIsToldAndTheLastSavedMaskStays)
{
    ResumeWorkHelper work(folder.path(), defaults);
    screen->setResumeWorkHelper(&work);
    screen->applicationWillResignActive();
    work.finishSaving();
    const Plane before = savedPlane(work);
    screen->erasorButtonPressed();
    begin(centre);
    move(centre + QPointF(40, 0));
    end(centre + QPointF(40, 0));
    ASSERT_TRUE(engine().canvas.context()->makeCurrent());
    for (GLuint name = 1; name < 50; ++name)
        glDeleteFramebuffers(1, &name);
    for (int i = 0; i < 2; ++i) {
        screen->applicationWillResignActive();
        work.finishSaving();
        EXPECT_EQ(savedPlane(work), before);
        EXPECT_FALSE(engine().canvas.fgMappedTexture->lockTexture()) << "old bytes taken for true";
    }
    EXPECT_TRUE(screen->alert()->isOpen());
    EXPECT_TRUE(renderCutOut(engine().canvas.fgMappedTexture.get()).isNull());
}

TEST_F(Editor, WorkThatCannotBeWrittenIsToldOnceAndKeptWhenThereIsRoom)
{
    ResumeWorkHelper work(folder.path(), defaults);
    const QString place = work.folderPath();
    const auto touch = [&] {
        screen->invertMaskButtonPressed();
        screen->applicationWillResignActive();
        work.finishSaving();
        EXPECT_TRUE(drainUntil([] { return !drainMainQueue(); }));
    };
    const auto block = [&](bool isBlocked) { // nobody can write into a file, not even root
        ASSERT_TRUE(isBlocked ? QDir(place).removeRecursively() : QFile::remove(place));
        QFile file(place);
        ASSERT_TRUE(!isBlocked || file.open(QIODevice::WriteOnly));
    };
    screen->backButtonPressed(); // a question that stands comes first
    block(true);
    work.saveWorkingImage(discImage(200, 200));
    screen->setResumeWorkHelper(&work);
    touch();
    EXPECT_EQ(screen->alert()->title(), localized("startover.title"));
    screen->alert()->dismiss();
    ASSERT_TRUE(QTest::qWaitFor([this] { return screen->alert()->isOpen(); }));
    EXPECT_EQ(screen->alert()->message(), localized("homescreen.error.workIsNotKept").arg(place));
    screen->alert()->dismiss();
    touch();
    EXPECT_FALSE(screen->alert()->isOpen()) << "told twice";
    block(false);
    touch();
    EXPECT_TRUE(work.hasSavedWork()) << "the photo is tried again, too";
    EXPECT_EQ(savedPlane(work), alpha());
    block(true);
    touch();
    EXPECT_TRUE(screen->alert()->isOpen());
}

TEST_F(Editor, OpensTheSaveScreenAndFromThereGoesHomeWithoutItsWork)
{
    ResumeWorkHelper work(folder.path(), defaults);
    work.saveWorkingImage(discImage(200, 200));
    work.finishSaving();
    screen->setResumeWorkHelper(&work);
    screen->applicationDidEnterBackground();
    work.finishSaving();
    ASSERT_TRUE(work.hasSavedWork());
    std::shared_ptr<SaveViewController> saveView;
    std::function<void()> dismissed;
    int pops = 0;
    screen->popBlock = [&pops] { ++pops; };
    screen->presentSaveViewBlock = [&](std::shared_ptr<SaveViewController> shown) {
        saveView = std::move(shown);
        saveView->dismissBlock = [&](std::function<void()> end) { dismissed = std::move(end); };
    };
    screen->saveButtonPressed();
    screen->saveButtonPressed();
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
    tap(centre);
    ASSERT_TRUE(settle()); // the disc is erased
    const Plane mask = alpha();
    std::vector<QImage> images;
    std::atomic<int> runs = 0;
    const auto retouch = [&](ViewController::Retouch how) {
        screen->fullSizeImageRetouchedBy(std::move(how),
                                         [&](const QImage& image) { images.push_back(image); });
    };
    const auto count = [&](const PixelSpan&) { return ++runs > 0; };
    screen->fullSizeImageWithCompletion([&](const QImage& image) { images.push_back(image); });
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
    screen.reset();
    ASSERT_TRUE(drainUntil([&] { return runs > before; }));
    while (drainMainQueue()) {
    }
    EXPECT_EQ(images.size(), 4U);
}

TEST_F(Editor, KeysDoWithTheWandWhatAFingerDoes)
{
    KeyboardAim& aim = *screen->keyboardAim();
    const OverlayRequests& shown = engine().overlays;
    aim.move(0, -1, false);
    EXPECT_TRUE(shown.drawWandZoom);
    EXPECT_EQ(shown.brushPosition, centre - QPointF(0, 5));
    EXPECT_EQ(screen->changeBackgroundView()->alpha(), 0.0);

    // The photo is moved under the aim, which stays.
    const QPointF under = engine().canvas.maskPosForScreenPos(shown.brushPosition);
    aim.zoomBy(2);
    EXPECT_NEAR(engine().canvas.fgImage.scale, 2.0, 1e-9);
    EXPECT_NEAR(engine().canvas.maskPosForScreenPos(shown.brushPosition).y(), under.y(), 1e-6);
    aim.zoomBy(0.5);
    aim.leave();
    EXPECT_FALSE(shown.drawWandZoom);
    EXPECT_EQ(screen->changeBackgroundView()->alpha(), 1.0);

    for (int i = 0; i < 3; ++i)
        aim.move(-1, -1, true);
    aim.press();
    ASSERT_TRUE(settle());
    const Plane byKeys = alpha();
    EXPECT_NE(byKeys, untouched);
    EXPECT_EQ(levels(), 2U);
    screen->undoButtonPressed();
    tap({75, 297});
    ASSERT_TRUE(settle());
    EXPECT_EQ(alpha(), byKeys);

    for (int i = 0; i < 100; ++i)
        aim.move(-1, 1, true);
    EXPECT_EQ(shown.brushPosition, QPointF(0, 844));
    tap(centre); // a finger takes over, and leaves the aim where it landed
    ASSERT_TRUE(settle());
    aim.move(1, 0, false);
    EXPECT_EQ(shown.brushPosition, centre + QPointF(5, 0));
}

TEST_F(Editor, ABrushPaintsWithTheArrowsWhileItIsHeldDown)
{
    KeyboardAim& aim = *screen->keyboardAim();
    screen->erasorButtonPressed();
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

    screen->undoButtonPressed();
    begin({155, 422});
    move({195, 422});
    move({235, 422});
    end({235, 422});
    EXPECT_EQ(alpha(), byKeys);

    // Enter puts it down and lifts it; so does taking another tool.
    for (const std::size_t expected : {2U, 2U, 3U}) {
        aim.press();
        aim.move(1, 0, true);
        EXPECT_EQ(levels(), expected);
    }
    screen->replaceButtonPressed();
    EXPECT_EQ(screen->changeBackgroundView()->alpha(), 1.0);
    aim.move(-1, 0, true);
    EXPECT_EQ(levels(), 3U);
}

TEST_F(Editor, WithoutGLShowsNothingAndSurvivesEveryButton)
{
    screen =
        std::make_shared<ViewController>(defaults, [] { return std::shared_ptr<GLContext>(); });
    OffscreenGLView dark({390, 844}, 1.0);
    show(*screen, discImage(20, 20), dark);
    tap({10, 10});
    screen->erasorButtonPressed();
    screen->invertMaskButtonPressed();
    screen->showMaskButtonPressed();
    screen->undoButtonPressed();
    screen->brushButtonPressed();
    screen->saveButtonPressed();
    screen->changeBackgroundViewTapped();
    screen->viewStepped({{5, 5}, {1, 1}, 2, 1});
    screen->didReceiveMemoryWarning();
    EXPECT_FALSE(screen->saveButton()->isEnabled());
}

} // namespace
} // namespace pelmira
