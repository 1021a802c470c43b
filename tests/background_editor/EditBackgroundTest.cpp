#include "background_editor/BackgroundEditor.h"
#include "background_editor/colors/ChangeColorVC.h"
#include "support/Fingers.h"
#include "support/WaitFor.h"

namespace pelmira {
namespace {

struct EditBackground : testing::Test, test::BackgroundEditor {
    EditBackground() : BackgroundEditor({390, 844})
    {
        screen->dismissBlock = [this] { ++dismissals; };
        screen->saveBlock = [this](std::function<QImage()> picture,
                                   std::function<void(bool)> completion) {
            ++saves;
            saved = picture();
            answer = std::move(completion);
        };
        show(plainImage({300, 200}, Qt::red));
    }
    void pressTab(int index)
    {
        screen->tabbar()->buttonPressed(screen->tabbar()->buttonAtIndex(index));
    }
    void waitForTabs()
    {
        ASSERT_TRUE(waitFor([this] { return screen->tabbar()->isUserInteractionEnabled(); }));
    }
    bool waitForMixerToGo()
    {
        return waitFor([this] { return screen->rgbMixerPanelVC() == nullptr; });
    }
    QRgb savedPixel(int x, int y)
    {
        answer = nullptr;
        screen->saveButtonPressed();
        answer(false); // the screen stays
        screen->alert()->dismiss();
        return saved.pixel(x, y);
    }

    int dismissals = 0;
    int saves = 0;
    QImage saved;
    std::function<void(bool)> answer;
};

TEST_F(EditBackground, BeginsWithTheCutOutOnWhiteInTheMiddle)
{
    BGEWorkAreaView& area = *screen->workAreaView();
    const QRectF canvas = area.bgImageView()->frame();
    ASSERT_NE(area.fgStickerView(), nullptr);
    EXPECT_EQ(area.fgStickerView()->center(), canvas.center());
    EXPECT_EQ(savedPixel(5, 5), qRgb(255, 255, 255));
    EXPECT_EQ(savedPixel(1024, 768), qRgb(255, 0, 0));
    // It comes once.
    const StickerView* first = area.fgStickerView();
    screen->viewDidAppear(true);
    EXPECT_EQ(area.fgStickerView(), first);
    EXPECT_EQ(QImage::fromData(first->originalImage()->imageData()).size(), QSize(300, 200));
}

TEST_F(EditBackground, OneTabAtATimeAndTheOpenOneStays)
{
    pressTab(0);
    QObject* canvas = screen->panels()->currentPanel();
    EXPECT_EQ(canvas, screen->canvasPanel());
    pressTab(3); // the first panel is still on its way
    EXPECT_EQ(screen->panels()->currentPanel(), canvas);
    waitForTabs();
    pressTab(0);
    EXPECT_TRUE(screen->tabbar()->isUserInteractionEnabled());
    pressTab(3);
    EXPECT_EQ(screen->panels()->currentPanel(), screen->colorPanel());
    screen->panelCloseButtonPressed();
    EXPECT_EQ(screen->panels()->currentPanel(), nullptr);
    waitForTabs();
}

TEST_F(EditBackground, ARatioShapesTheCanvasAlsoDuringADrag)
{
    pressTab(0);
    test::Fingers<BGEWorkAreaView> fingers(*screen->workAreaView());
    const QPointF middle = canvas().frame().center();
    fingers.drag(middle, middle + QPointF(20, 0));
    screen->canvasPanel()->handleAspectThumbButtonWithButton(screen->canvasPanel()->buttons()[1]);
    fingers.move(0, middle + QPointF(30, 0));
    fingers.lift(0);
    EXPECT_EQ(screen->workAreaView()->fgStickerView()->center(), middle + QPointF(30, 0));
    savedPixel(0, 0);
    EXPECT_EQ(saved.size(), QSize(1639, 2048));
}

TEST_F(EditBackground, ThePhotoComesBeforeThePatternAndThatBeforeTheColour)
{
    CompositionBackground& background = screen->background();
    background.setBackgroundImage(plainImage({60, 40}, Qt::green));
    EXPECT_EQ(screen->workAreaView()->bgAspectRatio, 1.5);
    EXPECT_EQ(savedPixel(3, 3), qRgb(0, 255, 0));
    background.pickPattern(7);
    background.showTile(6, plainImage({6, 6}, Qt::green)); // picked before
    background.showTile(7, plainImage({8, 8}, Qt::blue));
    EXPECT_EQ(canvas().tile().width(), 8);
    EXPECT_TRUE(std::holds_alternative<QImage>(screen->composition()->background));
    background.setBackgroundImage({});
    EXPECT_TRUE(
        std::holds_alternative<Composition::PatternForScale>(screen->composition()->background));
    EXPECT_EQ(background.rgbLabelText(), QStringLiteral("R: G: B:"));
    screen->colorPanel()->colorPickerLineView()->pick(1.0);
    EXPECT_EQ(background.bgPatternIndex(), -1);
    EXPECT_EQ(screen->workAreaView()->bgAspectRatio, 1.5); // the photo's shape stays
    EXPECT_TRUE(canvas().tile().isNull());
    EXPECT_EQ(savedPixel(3, 3), qRgb(0, 0, 0));
    EXPECT_EQ(screen->rgbButtonLabel(), QStringLiteral("R: 0 G: 0 B: 0"));
}

TEST_F(EditBackground, TheMixerChangesTheColourAtOnceAndIsOneAtATime)
{
    screen->background().setSolidBackground(QColor(255, 0, 51));
    screen->handleRgbButtonTapped();
    ZKLRGBMixerVC* mixer = screen->rgbMixerPanelVC();
    ASSERT_NE(mixer, nullptr);
    EXPECT_EQ(mixer->hexLabel(), QStringLiteral("0xFF0033"));
    screen->handleRgbButtonTapped();
    EXPECT_EQ(screen->rgbMixerPanelVC(), mixer);
    mixer->gSlider()->moveTo(1.0);
    EXPECT_EQ(canvas().backgroundColor().green(), 255);
    mixer->handleTopScreenTap();
    EXPECT_EQ(screen->rgbButtonLabel(), QStringLiteral("R: 255 G: 255 B: 51"));
    EXPECT_FALSE(screen->isMixerUp());
    mixer->handleTickButton(); // again, while it slides
    ASSERT_TRUE(waitForMixerToGo());
    screen->handleRgbButtonTapped();
    ASSERT_TRUE(screen->isMixerUp());
    screen->setViewSize({844, 390}); // a turn of the device
    EXPECT_FALSE(screen->isMixerUp());
    ASSERT_TRUE(waitForMixerToGo());
}

TEST_F(EditBackground, SavingLeavesOnceThePictureIsOnItsWay)
{
    screen->saveButtonPressed();
    screen->saveButtonPressed();
    screen->cancelButtonPressed();
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(dismissals, 0);
    EXPECT_FALSE(screen->saveButton()->isEnabled());
    answer(false); // for want of memory
    EXPECT_TRUE(screen->alert()->isOpen() && screen->saveButton()->isEnabled());
    screen->saveButtonPressed();
    answer(true);
    EXPECT_EQ(dismissals, 1);
    screen->cancelButtonPressed(); // it is on its way out
    EXPECT_EQ(dismissals, 1);
    const auto late = answer;
    screen.reset();
    late(true); // nobody is left to be told
}

TEST_F(EditBackground, SavesOnlyOnceTheObjectStandsWhichTakesACanvas)
{
    const auto newScreen = [this] {
        screen = std::make_shared<EditBackgroundVC>(defaults, hud, [] { return QSizeF(390, 844); });
        screen->dismissBlock = [this] { ++dismissals; };
        screen->setFgImage(plainImage({300, 200}, Qt::red));
        screen->viewDidLoad();
    };
    newScreen();
    screen->setViewSize({390, 844});
    screen->saveButtonPressed(); // on the way in
    EXPECT_EQ(dismissals, 0);
    newScreen();
    screen->setViewSize({190, 200});
    screen->viewDidAppear(false);
    screen->saveButtonPressed();
    EXPECT_EQ(dismissals, 0);
    screen->setViewSize({390, 844});
    EXPECT_TRUE(screen->workAreaView()->fgStickerView() && screen->saveButton()->isEnabled());
}

TEST_F(EditBackground, WithNothingToSaveItSaysSuccessAndLeaves)
{
    screen->workAreaView()->setFgStickerView(nullptr);
    screen->saveButtonPressed();
    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(hud.isSuccess());
    EXPECT_EQ(dismissals, 1);
}

TEST_F(EditBackground, EscapeStepsBackAndNeverLeaves)
{
    screen->colorPanel();
    pressTab(3);
    waitForTabs();
    test::Fingers<BGEWorkAreaView> fingers(*screen->workAreaView());
    fingers.tap(canvas().frame().center());
    screen->handleRgbButtonTapped();
    screen->escapePressed();
    EXPECT_FALSE(screen->isMixerUp());
    EXPECT_TRUE(screen->workAreaView()->fgStickerView()->selected);
    screen->escapePressed();
    EXPECT_FALSE(screen->workAreaView()->fgStickerView()->selected);
    EXPECT_NE(screen->panels()->currentPanel(), nullptr);
    screen->escapePressed();
    EXPECT_EQ(screen->panels()->currentPanel(), nullptr);
    screen->escapePressed();
    EXPECT_EQ(dismissals, 0);
}

TEST_F(EditBackground, EveryWindowHasRoomForCanvasPanelsAndTabs)
{
    screen = std::make_shared<EditBackgroundVC>(defaults, hud, [] { return QSizeF(1920, 1080); });
    screen->viewDidLoad();
    for (const QSizeF size : {QSizeF(390, 844), QSizeF(844, 390), QSizeF(1280, 800),
                              QSizeF(320, 568), QSizeF(320, 320), QSizeF(2560, 1400)}) {
        SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height());
        screen->setViewSize(size);
        const QRectF view({}, size);
        const QRectF frames[] = {screen->topBarFrame(), screen->workAreaFrame(),
                                 screen->controlContainerFrame(), screen->tabbarFrame()};
        for (const QRectF& frame : frames) {
            EXPECT_TRUE(view.contains(frame) || frame.isEmpty());
            for (const QRectF& other : frames)
                EXPECT_TRUE(&frame == &other || !frame.intersects(other));
        }
        EXPECT_GE(screen->tabbar()->buttonAtIndex(0)->frame().width(), 60);
    }
}

TEST(ChangeColor, DoneDeliversTheColourOrWhiteAndCancelNothing)
{
    std::vector<QColor> delivered;
    int dismissals = 0;

    ChangeColorVC screens[3];
    for (ChangeColorVC& screen : screens) {
        screen.doneBlock = [&](const QColor& color) { delivered.push_back(color); };
        screen.dismissBlock = [&] { ++dismissals; };
        screen.viewDidLoad();
    }
    screens[1].colorPickerLine()->pick(1.0);
    screens[2].cancelButtonPressed();
    for (ChangeColorVC& screen : screens)
        for (int i = 0; i < 2; ++i)
            screen.doneButtonPressed();
    EXPECT_EQ(delivered, (std::vector<QColor>{Qt::white, Qt::black}));
    EXPECT_EQ(dismissals, 3);
}

} // namespace
} // namespace pelmira
