#include "mask_editor/screen/ViewController.h"

#include "controls/Alert.h"
#include "controls/BrushPanelView.h"
#include "controls/InterfaceButton.h"
#include "controls/ZKLScrollDial.h"
#include "export/SaveViewController.h"
#include "mask_editor/screen/BackgroundPreview.h"
#include "mask_editor/screen/KeyboardAim.h"
#include "mask_editor/screen/ToolBars.h"
#include "mask_editor/screen/ToolTip.h"
#include "mask_editor/surface/RenderOut.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/pixels/AlphaPlane.h"
#include "platform/text/LocalizedStrings.h"
#include "support/EngineFixture.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

// The whole screen but for its layout file, which needs a window.
class Editor : public ::testing::Test {
protected:
    void SetUp() override
    {
        ToolBars& bars = *screen->bars();
        bars.setButtonContainerInitialHeight(106);
        bars.setBottomSafeAreaInset(8);
        bars.setWandButtonMaxY(62);
        bars.setTopBarHeight(56);
        bars.setBottomBarWidth(358);
        screen->setImage(discImage(200, 200));
        screen->setGLView(&view);
        screen->viewDidLoad();
        screen->setViewSize({390, 844});
        screen->viewWillAppear(true);
        view.displayIfNeeded();
        screen->viewDidAppear(true);
        ASSERT_TRUE(engine().canvas.isOpen());
    }

    MaskEditorEngine& engine() { return *screen->engine(); }
    std::size_t levels() { return engine().history.levels(); }

    TouchEvent fingers(std::initializer_list<QPointF> points) { return fingersAt(points); }
    void begin(std::initializer_list<QPointF> points) { screen->touchesBegan(fingers(points)); }
    void move(std::initializer_list<QPointF> points) { screen->touchesMoved(fingers(points)); }
    // The last of the fingers lifts.
    void end(std::initializer_list<QPointF> points)
    {
        TouchEvent event = fingers(points);
        event.allTouches.back().hasEnded = true;
        screen->touchesEnded(event);
    }
    bool settle()
    {
        return drainUntil([this] { return engine().canvas.readySurface() != nullptr; });
    }
    std::vector<std::uint8_t> alpha()
    {
        OGLESMappedTexture& surface = *engine().canvas.fgMappedTexture;
        std::vector<std::uint8_t> plane(std::size_t(surface.width()) * surface.height());
        EXPECT_TRUE(surface.lockTexture());
        copyAlphaPlane(surface.lockedPixels(), plane.data());
        surface.unlockTexture();
        return plane;
    }

    static std::vector<std::uint8_t> savedPlane(const ResumeWorkHelper& work)
    {
        const auto entry = work.savedWorkUndoEntry();
        if (!entry)
            return {};
        std::int32_t length = 0;
        const std::uint8_t* plane = entry->originalDataWithLengthPtr(&length);
        return {plane, plane + length};
    }

    const QPointF centre{195, 422};
    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(QStringLiteral("preferences.json"))};
    OffscreenGLView view{{390, 844}, 1.0};
    std::shared_ptr<ViewController> screen =
        std::make_shared<ViewController>(defaults, [] { return GLContext::surfaceless(); });
};

TEST_F(Editor, StartsWithTheWandAndSwapsControlsWithTheTool)
{
    EXPECT_EQ(screen->mode(), ModeWand);
    EXPECT_TRUE(screen->wandButton()->isSelected());
    EXPECT_FALSE(screen->undoButton()->isEnabled());
    const ZKLScrollDial* tolerance = screen->dial();
    EXPECT_DOUBLE_EQ(tolerance->value(), 0.2);
    EXPECT_EQ(tolerance->frame(), QRectF(0, 74, 358, 32)); // flush with the bar's lower edge
    screen->erasorButtonPressed();
    EXPECT_FALSE(screen->wandButton()->isSelected());
    EXPECT_NE(screen->dial(), tolerance);
    EXPECT_NEAR(screen->dial()->value(), 0.14, 1e-6);
    EXPECT_EQ(screen->toolTip()->alpha(), 1.0);
    screen->wandButtonPressed();
    EXPECT_EQ(screen->dial(), tolerance);

    // The keys for the brush's size leave the tolerance alone.
    const double before = screen->dial()->value();
    screen->stepBrushSize(3);
    EXPECT_EQ(screen->dial()->value(), before);
    screen->replaceButtonPressed();
    screen->stepBrushSize(3);
    EXPECT_NEAR(screen->dial()->value(), 0.2, 1e-6);
    screen->stepBrushSize(-3);
    screen->wandButtonPressed();

    // The pen swaps the brushes, and from the wand goes to erase.
    screen->pencilInteractionDidTap();
    EXPECT_EQ(screen->mode(), ModeErase);
    screen->pencilInteractionDidTap();
    EXPECT_EQ(screen->mode(), ModeReplace);
    screen->pencilInteractionDidTap();
    EXPECT_EQ(screen->mode(), ModeErase);
}

TEST_F(Editor, TheDialGoesOnRefiningUntilTheWandIsChosenAnew)
{
    begin({centre});
    end({centre});
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
    const std::vector<std::uint8_t> inverted = alpha();
    EXPECT_EQ(inverted, std::vector<std::uint8_t>(200 * 200, 0));
    screen->viewDidAppear(true);
    EXPECT_EQ(alpha(), inverted);
    EXPECT_TRUE(screen->undoButton()->isEnabled());
    screen->undoButtonPressed();
    EXPECT_EQ(alpha(), std::vector<std::uint8_t>(200 * 200, 255));
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
    begin({centre});
    end({centre});
    ASSERT_TRUE(settle());
    const std::vector<std::uint8_t> mask = alpha();
    EXPECT_NE(mask, std::vector<std::uint8_t>(200 * 200, 255));
    const std::size_t levelsBefore = levels();
    screen->applicationDidEnterBackground();
    EXPECT_EQ(levels(), levelsBefore); // the snapshot is no level of undo
    work.finishSaving();
    ASSERT_TRUE(work.hasSavedWork());

    auto resumed =
        std::make_shared<ViewController>(defaults, [] { return GLContext::surfaceless(); });
    OffscreenGLView otherView({390, 844}, 1.0);
    resumed->setResumeWorkHelper(&work);
    resumed->setImage(work.savedWorkImage());
    resumed->setGLView(&otherView);
    resumed->viewDidLoad();
    resumed->setViewSize({390, 844});
    resumed->viewDidAppear(true);
    std::swap(screen, resumed);
    EXPECT_EQ(alpha(), mask);
    EXPECT_FALSE(screen->undoButton()->isEnabled());

    // Starting over gives the work up.
    screen->backButtonPressed();
    screen->alert()->buttonPressed(true);
    EXPECT_FALSE(work.hasSavedWork());
}

// Closed, asked to go or left for another window, while a fill has the surface.
TEST_F(Editor, AFillThatRunsWhenTheUserLeavesIsInTheSavedMask)
{
    ResumeWorkHelper work(folder.path(), defaults);
    screen->setResumeWorkHelper(&work);
    const std::function<void()> ways[] = {[this] { screen->applicationDidEnterBackground(); },
                                          [this] { screen->applicationWillResignActive(); }};
    for (const auto& leave : ways) {
        begin({centre});
        end({centre});
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
    const std::vector<std::uint8_t> before = savedPlane(work);
    screen->erasorButtonPressed();
    begin({centre});
    move({centre + QPointF(40, 0)});
    end({centre + QPointF(40, 0)});
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
    screen->popToPhotoPickerBlock = [&pops] { ++pops; };
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
    begin({centre});
    end({centre});
    ASSERT_TRUE(settle()); // the disc is erased
    const std::vector<std::uint8_t> mask = alpha();
    std::vector<QImage> images;
    const auto add = [&images](const QImage& image) { images.push_back(image); };
    std::atomic<int> runs = 0;
    std::uint32_t erased = 0;
    screen->fullSizeImageWithCompletion(add);
    screen->fullSizeImageRetouchedBy(
        [&](const PixelSpan&) {
            ++runs;
            return true;
        },
        add);
    ASSERT_TRUE(drainUntil([&] { return images.size() == 2; }));
    EXPECT_EQ(images[0], images[1]);

    screen->fullSizeImageRetouchedBy(
        [&, main = std::this_thread::get_id()](const PixelSpan& pixels) {
            EXPECT_NE(std::this_thread::get_id(), main);
            erased = pixels.row(100)[100];
            pixels.row(100)[100] = 0x80FF8040; // half seen
            return true;
        },
        add);
    ASSERT_TRUE(drainUntil([&] { return images.size() == 3; }));
    EXPECT_EQ(qAlpha(erased), 0);
    EXPECT_NE(erased, 0U); // its colour is still there
    EXPECT_EQ(images[2].pixel(100, 100), qPremultiply(0x80FF8040));
    EXPECT_EQ(qAlpha(images[1].pixel(100, 100)), 0);
    EXPECT_EQ(alpha(), mask);

    screen->fullSizeImageRetouchedBy([](const PixelSpan&) { return false; }, add);
    ASSERT_TRUE(drainUntil([&] { return images.size() == 4; }));
    EXPECT_TRUE(images[3].isNull());
    // A retouch may outlive the screen; nobody is told then.
    const int before = runs;
    screen->fullSizeImageRetouchedBy(
        [&](const PixelSpan&) {
            ++runs;
            return true;
        },
        add);
    screen.reset();
    ASSERT_TRUE(drainUntil([&] { return runs > before; }));
    while (drainMainQueue()) {
    }
    EXPECT_EQ(images.size(), 4U);
}

TEST_F(Editor, AsksBeforeLeaving)
{
    bool left = false;
    screen->popBlock = [&left] { left = true; };
    screen->backButtonPressed();
    screen->alert()->buttonPressed(false);
    EXPECT_FALSE(left);
    screen->backButtonPressed();
    screen->alert()->buttonPressed(true);
    EXPECT_TRUE(left);
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
    EXPECT_TRUE(shown.drawWandZoom);
    aim.zoomBy(0.5);

    aim.leave();
    EXPECT_FALSE(shown.drawWandZoom);
    EXPECT_EQ(screen->changeBackgroundView()->alpha(), 1.0);
    EXPECT_EQ(levels(), 0U);

    for (int i = 0; i < 3; ++i)
        aim.move(-1, -1, true);
    aim.press();
    ASSERT_TRUE(settle());
    const std::vector<std::uint8_t> byKeys = alpha();
    EXPECT_EQ(levels(), 2U);
    screen->undoButtonPressed();
    begin({QPointF(75, 297)});
    end({QPointF(75, 297)});
    ASSERT_TRUE(settle());
    EXPECT_EQ(alpha(), byKeys);
    EXPECT_NE(byKeys, std::vector<std::uint8_t>(200 * 200, 255));

    for (int i = 0; i < 100; ++i)
        aim.move(-1, 1, true);
    EXPECT_EQ(shown.brushPosition, QPointF(0, 844));
    // A finger takes over, and leaves the aim where it landed.
    begin({centre});
    end({centre});
    ASSERT_TRUE(settle());
    aim.move(1, 0, false);
    EXPECT_EQ(shown.brushPosition, centre + QPointF(5, 0));
}

TEST_F(Editor, ABrushPaintsWithTheArrowsWhileItIsHeldDown)
{
    KeyboardAim& aim = *screen->keyboardAim();
    const OverlayRequests& shown = engine().overlays;
    const auto untouched = std::vector<std::uint8_t>(200 * 200, 255);
    screen->erasorButtonPressed();
    aim.move(-1, 0, true);
    EXPECT_TRUE(shown.drawBrush);
    aim.hold();
    EXPECT_EQ(levels(), 0U);
    aim.move(1, 0, true);
    aim.hold(); // a key that repeats
    aim.move(1, 0, true);
    aim.release();
    aim.move(0, 1, true);
    const std::vector<std::uint8_t> byKeys = alpha();
    EXPECT_EQ(levels(), 1U);
    EXPECT_NE(byKeys, untouched);

    screen->undoButtonPressed();
    begin({QPointF(155, 422)});
    move({QPointF(195, 422)});
    move({QPointF(235, 422)});
    end({QPointF(235, 422)});
    EXPECT_EQ(alpha(), byKeys);
    screen->undoButtonPressed();

    // Enter puts it down and lifts it; so does taking another tool.
    aim.press();
    aim.move(1, 0, true);
    aim.press();
    aim.move(1, 0, true);
    EXPECT_EQ(levels(), 1U);
    aim.press();
    aim.move(1, 0, true);
    EXPECT_EQ(levels(), 2U);
    screen->replaceButtonPressed();
    EXPECT_EQ(screen->changeBackgroundView()->alpha(), 1.0);
    aim.move(-1, 0, true);
    EXPECT_EQ(levels(), 2U);
}

TEST(EditorWithoutGL, ShowsNothingAndSurvivesEveryButton)
{
    QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(QStringLiteral("preferences.json")));
    OffscreenGLView view({390, 844}, 1.0);
    const auto screen =
        std::make_shared<ViewController>(defaults, [] { return std::shared_ptr<GLContext>(); });
    screen->setImage(discImage(20, 20));
    screen->setGLView(&view);
    screen->viewDidLoad();
    screen->setViewSize({390, 844});
    screen->viewWillAppear(true);
    screen->viewDidAppear(true);
    screen->touchesBegan(fingersAt({{10, 10}}));
    screen->touchesEnded(fingersAt({{10, 10}}));
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
