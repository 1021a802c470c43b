#include "crop/TOCropViewController.h"
#include "support/ShownScreen.h"

namespace pelmira {
namespace {

/// The crop tool's layout in a window with the real screen.
struct CropScreenLayout : testing::Test {
    void open(QSize size)
    {
        shown.reset();
        screen = TOCropViewController::initWithImage(plainImage({400, 300}, Qt::darkGreen));
        shown = std::make_unique<test::ShownScreen>(screen, size);
    }
    QRectF frameOf(const char* text)
    {
        QQuickItem* item = shown->button(QString::fromLatin1(text));
        EXPECT_NE(item, nullptr) << text;
        return item ? test::ShownScreen::frameOf(item) : QRectF();
    }
    void click(const char* text) { shown->click(QString::fromLatin1(text)); }

    std::shared_ptr<TOCropViewController> screen;
    std::unique_ptr<test::ShownScreen> shown;
};

TEST_F(CropScreenLayout, ButtonsStandInReachAndReportToTheScreen)
{
    for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(1280, 800), QSize(360, 640)}) {
        open(size);
        for (const char* text : {"Cancel", "Done", "Free", "Original"}) {
            const QRectF frame = frameOf(text);
            EXPECT_TRUE(QRectF(QPointF(), size).contains(frame)) << text;
            EXPECT_GE(frame.width(), 44.0) << text;
            EXPECT_GE(frame.height(), 44.0) << text;
        }
    }

    bool cancelled = false;
    bool done = false;
    screen->didCropToImage = [&](QImage, QRect) { done = true; };
    screen->didFinishCancelled = [&] { cancelled = true; };
    click("Done");
    EXPECT_TRUE(waitFor([&] { return done; }));
    click("Square");
    EXPECT_EQ(screen->aspectRatioPreset(), cropPresetSquare);
    click("Cancel");
    EXPECT_TRUE(cancelled);
}

TEST_F(CropScreenLayout, AWideWindowShowsTheWholeStripInTheMiddleANarrowOneScrollsIt)
{
    open(QSize(1280, 800));
    QRectF first = frameOf("Free");
    const QRectF last = frameOf("16 x 9");
    EXPECT_NEAR(first.left(), 1280 - last.right(), 1.0);

    open(QSize(390, 844));
    first = frameOf("Free");
    EXPECT_EQ(first.left(), 10.0);
    EXPECT_GT(frameOf("16 x 9").left(), 390.0);
    // A finger that lands on a button scrolls the strip when it moves on, and presses nothing.
    shown->drag({330, 804}, {130, 804});
    EXPECT_LT(frameOf("Free").left(), -100.0);
    EXPECT_EQ(screen->aspectRatioPreset(), cropPresetOriginal);
}

TEST_F(CropScreenLayout, MouseWheelAndFingersReachTheImage)
{
    open(QSize(390, 844));
    const QRectF box = screen->cropBoxFrame();
    shown->wheel(box.center(), {0, 240});
    EXPECT_NEAR(screen->imageFrame().width(), box.width() * 1.44, 1e-6);
    const QRectF image = screen->imageFrame();
    const QPoint centre = box.center().toPoint();
    QTest::mousePress(&shown->window, Qt::LeftButton, {}, centre);
    QTest::mouseMove(&shown->window, centre + QPoint(12, 7));
    EXPECT_EQ(screen->imageFrame(), image.translated(12, 7));
    EXPECT_EQ(screen->cropBoxFrame(), box);
    QTest::mouseRelease(&shown->window, Qt::LeftButton, {}, centre + QPoint(12, 7));

    const QPoint corner = box.topLeft().toPoint();
    shown->drag(corner, corner + QPoint(60, 50));
    EXPECT_EQ(screen->cropBoxFrame().topLeft(), box.topLeft() + QPointF(60, 50));
}

TEST_F(CropScreenLayout, KeysNudgeZoomFinishAndCancel)
{
    open(QSize(390, 844));
    const QRectF box = screen->cropBoxFrame();
    shown->key(Qt::Key_Plus);
    EXPECT_NEAR(screen->imageFrame().width(), box.width() * 1.1, 1e-6);
    const QRectF image = screen->imageFrame();
    shown->key(Qt::Key_Right);
    shown->key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_NEAR(screen->imageFrame().left(), image.left() - 1, 1e-6);
    EXPECT_NEAR(screen->imageFrame().top(), image.top() - 10, 1e-6);
    int done = 0;
    screen->didCropToImage = [&](QImage, QRect) { ++done; };
    shown->key(Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return done == 1; }));

    // On a button that the keyboard has gone to, Enter is that button's.
    shown->button(QStringLiteral("Square"))->forceActiveFocus(Qt::TabFocusReason);
    shown->key(Qt::Key_Return);
    EXPECT_EQ(screen->aspectRatioPreset(), cropPresetSquare);
    bool cancelled = false;
    screen->didFinishCancelled = [&] { cancelled = true; };
    shown->navigation.setEnabled(false); // a question stands over all screens
    shown->key(Qt::Key_Escape);
    EXPECT_FALSE(cancelled);
    shown->navigation.setEnabled(true);
    shown->key(Qt::Key_Escape);
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(done, 1);
}

TEST_F(CropScreenLayout, AScreenReaderFindsTheFrameAndTellsTheRatiosApart)
{
    QAccessible::setActive(true);
    open(QSize(390, 844));
    QStringList ratios;
    QStringList checked;
    QStringList frames;
    shown->eachExposed([&](QAccessibleInterface& item) {
        const QString name = item.text(QAccessible::Name);
        if (item.role() == QAccessible::CheckBox)
            ratios << name;
        if (item.state().checked)
            checked << name;
        if (item.role() == QAccessible::Graphic)
            frames << name;
    });
    EXPECT_EQ(ratios.size(), cropPresetCount);
    EXPECT_EQ(ratios.removeDuplicates(), 0);
    EXPECT_EQ(checked, QStringList{QStringLiteral("Free")});
    EXPECT_EQ(frames, QStringList{QStringLiteral("Crop frame")});
    QAccessible::setActive(false);
}

} // namespace
} // namespace pelmira
