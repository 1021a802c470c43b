#include "crop/TOCropViewController.h"
#include "platform/quick/PlatformTypes.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace pelmira {
namespace {

/// The crop tool's layout in a window with the real screen.
struct CropScreenLayout : testing::Test {
    static void SetUpTestSuite() { registerPlatformTypes(); }

    void open(QSize size)
    {
        view.reset();
        QImage photo(400, 300, QImage::Format_ARGB32_Premultiplied);
        photo.fill(Qt::darkGreen);
        screen = TOCropViewController::initWithImage(photo);
        view = std::make_unique<QQuickView>();
        QObject::connect(view->engine(), &QQmlEngine::warnings, [](const QList<QQmlError>& list) {
            for (const QQmlError& error : list)
                ADD_FAILURE() << error.toString().toStdString();
        });
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->resize(size);
        QQmlEngine::setObjectOwnership(screen.get(), QQmlEngine::CppOwnership);
        view->setInitialProperties(
            {{QStringLiteral("screen"), QVariant::fromValue<QObject*>(screen.get())}});
        view->setSource(screen->layoutFile());
        ASSERT_EQ(view->status(), QQuickView::Ready);
        screen->viewDidLoad();
        screen->setViewSize(size);
        screen->viewWillAppear(true);
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        view->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
        screen->viewDidAppear(true);
    }
    void buttonsUnder(QQuickItem* item, std::vector<QQuickItem*>& found) const
    {
        if (item->isVisible() && item->inherits("QQuickAbstractButton"))
            found.push_back(item);
        for (QQuickItem* child : item->childItems())
            buttonsUnder(child, found);
    }
    QQuickItem* button(const QString& text) const
    {
        std::vector<QQuickItem*> all;
        buttonsUnder(view->rootObject(), all);
        for (QQuickItem* each : all)
            if (each->property("text").toString() == text)
                return each;
        return nullptr;
    }
    static QRectF frameOf(QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }
    void click(const QString& text) const
    {
        QQuickItem* item = button(text);
        ASSERT_NE(item, nullptr) << text.toStdString();
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, frameOf(item).center().toPoint());
    }
    void wheel(QPointF at, int turn) const
    {
        QWheelEvent event(at, view->mapToGlobal(at), {}, QPoint(0, turn), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view.get(), &event);
    }

    std::shared_ptr<TOCropViewController> screen;
    std::unique_ptr<QQuickView> view;
};

TEST_F(CropScreenLayout, ButtonsStandInReachAndReportToTheScreen)
{
    for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(1280, 800), QSize(360, 640)}) {
        open(size);
        for (const char* text : {"Cancel", "Done", "Free", "Original"}) {
            QQuickItem* item = button(QLatin1String(text));
            ASSERT_NE(item, nullptr) << text;
            EXPECT_TRUE(QRectF(QPointF(), size).contains(frameOf(item))) << text;
            EXPECT_GE(frameOf(item).width(), 44.0);
            EXPECT_GE(frameOf(item).height(), 44.0);
        }
    }
    bool cancelled = false;
    bool done = false;
    screen->didCropToImage = [&](QImage, QRect) { done = true; };
    screen->didFinishCancelled = [&] { cancelled = true; };
    click(QStringLiteral("Done"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return done; }));
    click(QStringLiteral("Square"));
    EXPECT_EQ(screen->aspectRatioPreset(), cropPresetSquare);
    click(QStringLiteral("Cancel"));
    EXPECT_TRUE(cancelled);
}

TEST_F(CropScreenLayout, AWideWindowShowsTheWholeStripInTheMiddleANarrowOneScrollsIt)
{
    open(QSize(1280, 800));
    QRectF first = frameOf(button(QStringLiteral("Free")));
    const QRectF last = frameOf(button(QStringLiteral("16 x 9")));
    EXPECT_NEAR(first.left(), 1280 - last.right(), 1.0);

    open(QSize(390, 844));
    first = frameOf(button(QStringLiteral("Free")));
    EXPECT_EQ(first.left(), 10.0);
    EXPECT_GT(frameOf(button(QStringLiteral("16 x 9"))).left(), 390.0);
    // A finger that lands on a button scrolls the strip when it moves on, and presses nothing.
    static QPointingDevice* touchScreen = QTest::createTouchDevice();
    const QPoint start(330, 804);
    QTest::touchEvent(view.get(), touchScreen).press(0, start);
    for (int x = 0; x <= 200; x += 20) {
        QTest::touchEvent(view.get(), touchScreen).move(0, start - QPoint(x, 0));
        QTest::qWait(20);
    }
    QTest::touchEvent(view.get(), touchScreen).release(0, start - QPoint(200, 0));
    EXPECT_LT(frameOf(button(QStringLiteral("Free"))).left(), -100.0);
    EXPECT_EQ(screen->aspectRatioPreset(), cropPresetOriginal);
}

TEST_F(CropScreenLayout, MouseWheelAndFingersReachTheImage)
{
    open(QSize(390, 844));
    const QRectF box = screen->cropBoxFrame();
    wheel(box.center(), 240);
    EXPECT_NEAR(screen->imageFrame().width(), box.width() * 1.44, 1e-6);
    const QRectF image = screen->imageFrame();
    const QPoint centre = box.center().toPoint();
    QTest::mousePress(view.get(), Qt::LeftButton, {}, centre);
    QTest::mouseMove(view.get(), centre + QPoint(12, 7));
    EXPECT_EQ(screen->imageFrame(), image.translated(12, 7));
    EXPECT_EQ(screen->cropBoxFrame(), box);
    QTest::mouseRelease(view.get(), Qt::LeftButton, {}, centre + QPoint(12, 7));

    static QPointingDevice* touchScreen = QTest::createTouchDevice();
    const QPoint corner = box.topLeft().toPoint();
    QTest::touchEvent(view.get(), touchScreen).press(0, corner);
    QTest::qWait(20);
    QTest::touchEvent(view.get(), touchScreen).move(0, corner + QPoint(60, 50));
    QTest::qWait(20);
    EXPECT_EQ(screen->cropBoxFrame().topLeft(), box.topLeft() + QPointF(60, 50));
    QTest::touchEvent(view.get(), touchScreen).release(0, corner + QPoint(60, 50));
}

TEST_F(CropScreenLayout, KeysNudgeZoomFinishAndCancel)
{
    open(QSize(390, 844));
    const QRectF box = screen->cropBoxFrame();
    QTest::keyClick(view.get(), Qt::Key_Plus);
    EXPECT_NEAR(screen->imageFrame().width(), box.width() * 1.1, 1e-6);
    const QRectF image = screen->imageFrame();
    QTest::keyClick(view.get(), Qt::Key_Right);
    QTest::keyClick(view.get(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_NEAR(screen->imageFrame().left(), image.left() - 1, 1e-6);
    EXPECT_NEAR(screen->imageFrame().top(), image.top() - 10, 1e-6);
    int done = 0;
    screen->didCropToImage = [&](QImage, QRect) { ++done; };
    QTest::keyClick(view.get(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done == 1; }));

    // On a button that the keyboard has gone to, Enter is that button's.
    button(QStringLiteral("Square"))->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(view.get(), Qt::Key_Return);
    EXPECT_EQ(screen->aspectRatioPreset(), cropPresetSquare);
    bool cancelled = false;
    screen->didFinishCancelled = [&] { cancelled = true; };
    QTest::keyClick(view.get(), Qt::Key_Escape);
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
    const std::function<void(QAccessibleInterface*)> look = [&](QAccessibleInterface* item) {
        const QString name = item->text(QAccessible::Name);
        if (item->role() == QAccessible::CheckBox)
            ratios << name;
        if (item->state().checked)
            checked << name;
        if (item->role() == QAccessible::Graphic)
            frames << name;
        for (int i = 0; i < item->childCount(); ++i)
            look(item->child(i));
    };
    look(QAccessible::queryAccessibleInterface(view.get()));
    EXPECT_EQ(ratios.size(), cropPresetCount);
    EXPECT_EQ(ratios.removeDuplicates(), 0);
    EXPECT_EQ(checked, QStringList{QStringLiteral("Free")});
    EXPECT_EQ(frames, QStringList{QStringLiteral("Crop frame")});
    QAccessible::setActive(false);
}

} // namespace
} // namespace pelmira
