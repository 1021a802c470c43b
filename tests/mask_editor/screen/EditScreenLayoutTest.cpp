#include "controls/StyleUtil.h"
#include "mask_editor/screen/MockScreen.h"
#include "platform/quick/PlatformTypes.h"
#include "platform/quick/TouchArea.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace pelmira {
namespace {

using test::MockScreen;

const QUrl editScreen(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/EditScreen.qml"));

struct Listener final : ZKLScrollDialDelegate {
    void zklScrollDial(ZKLScrollDial&, double valueChanged) override
    {
        values.push_back(valueChanged);
    }
    std::vector<double> values;
};

/// Stands for the photo behind the controls and counts what is left for it.
class Picture : public TouchArea {
public:
    Picture()
    {
        setAcceptTouchEvents(true);
        setAcceptedMouseButtons(Qt::AllButtons);
    }
    static inline int presses = 0;
    static inline int wheelTurns = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void touchEvent(QTouchEvent* event) override
    {
        for (const QEventPoint& point : event->points())
            presses += point.state() == QEventPoint::Pressed ? 1 : 0;
    }
    void wheelEvent(QWheelEvent*) override { ++wheelTurns; }
};

/// The mask editor's layout in a window, with a stand-in for its controller.
struct EditScreenLayout : testing::Test {
    static void SetUpTestSuite()
    {
        registerPlatformTypes();
        qmlRegisterType<Picture>("Pelmira", 1, 0, "TouchArea");
    }

    void open(bool allTools, QSize size)
    {
        view.reset();
        screen = std::make_unique<MockScreen>(allTools);
        view = std::make_unique<QQuickView>();
        QObject::connect(view->engine(), &QQmlEngine::warnings, [](const QList<QQmlError>& list) {
            for (const QQmlError& error : list)
                ADD_FAILURE() << error.toString().toStdString();
        });
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->resize(size);
        view->setInitialProperties(
            {{QStringLiteral("screen"), QVariant::fromValue<QObject*>(screen.get())}});
        view->setSource(editScreen);
        ASSERT_EQ(view->status(), QQuickView::Ready);
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        screen->dial->layoutIfNeeded();
    }

    void visit(QQuickItem* item, const std::function<void(QQuickItem*)>& look)
    {
        if (!item->isVisible())
            return;
        look(item);
        for (QQuickItem* child : item->childItems())
            visit(child, look);
    }
    std::vector<QQuickItem*> buttons()
    {
        std::vector<QQuickItem*> found;
        visit(view->rootObject(), [&](QQuickItem* item) {
            if (item->inherits("QQuickAbstractButton"))
                found.push_back(item);
        });
        return found;
    }
    /// Opens the brush panel, waits until its spring rests, and gives its shape buttons.
    std::vector<QQuickItem*> openPanel()
    {
        screen->openPanel(QSizeF(view->size()));
        std::vector<QQuickItem*> shapes;
        const bool rests = QTest::qWaitFor([&] {
            shapes.clear();
            for (QQuickItem* button : buttons()) {
                if (button->property("panel").isValid())
                    shapes.push_back(button);
            }
            return !shapes.empty() &&
                   shapes[0]->mapToScene(QPointF()).y() == screen->brushAdjustFrame.top() + 8.0;
        });
        return rests ? shapes : std::vector<QQuickItem*>();
    }
    /// What assistive technology finds, as "role name", in the order of reading.
    QStringList exposed()
    {
        QStringList found;
        std::function<void(QAccessibleInterface*)> look = [&](QAccessibleInterface* item) {
            if (item->state().invisible)
                return;
            found << QString::number(item->role()) + u' ' + item->text(QAccessible::Name);
            for (int i = 0; i < item->childCount(); ++i)
                look(item->child(i));
        };
        look(QAccessible::queryAccessibleInterface(view.get()));
        return found;
    }
    static QPoint centreOf(QQuickItem* item)
    {
        return item->mapRectToScene(item->boundingRect()).center().toPoint();
    }
    QPoint dialCentre() const
    {
        const double top = view->height() - screen->initialHeight - screen->bottomSafeAreaInset;
        return {view->width() / 2, qRound(top + screen->dialFrame.center().y())};
    }

    std::unique_ptr<MockScreen> screen;
    std::unique_ptr<QQuickView> view;
};

TEST_F(EditScreenLayout, ButtonsAreNamedLargeEnoughInsideTheWindowAndApart)
{
    for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(1280, 800), QSize(360, 640)}) {
        open(true, size);
        const std::vector<QQuickItem*> all = buttons();
        EXPECT_EQ(all.size(), 11U);
        for (QQuickItem* button : all) {
            const QRectF frame = button->mapRectToScene(button->boundingRect());
            const std::string name = button->property("text").toString().toStdString();
            EXPECT_FALSE(name.empty());
            EXPECT_GE(frame.width(), 44.0) << name;
            EXPECT_GE(frame.height(), 44.0) << name;
            EXPECT_TRUE(QRectF(QPointF(), QSizeF(size)).contains(frame)) << name;
            for (QQuickItem* other : all) {
                if (other != button) {
                    EXPECT_FALSE(frame.intersects(other->mapRectToScene(other->boundingRect())))
                        << name;
                }
            }
        }
        EXPECT_LT(screen->topBarHeight + screen->initialHeight + screen->bottomSafeAreaInset,
                  0.45 * size.height());
        EXPECT_LE(screen->bottomBarWidth, 640.0);
    }
}

TEST_F(EditScreenLayout, AClickOnEachButtonReachesTheScreen)
{
    open(true, QSize(390, 844));
    for (QQuickItem* button : buttons())
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, centreOf(button));
    QStringList calls = screen->calls;
    calls.sort();
    EXPECT_EQ(calls.join(u' ').toStdString(),
              "back background brush erasor help invertMask replace save showMask undo wand");
}

TEST_F(EditScreenLayout, ButtonsThatTheScreenLacksAreNotShownNorTheirKeys)
{
    open(false, QSize(390, 844));
    EXPECT_EQ(buttons().size(), 5U);
    screen->undoButton->setEnabled(false);
    for (const Qt::Key key : {Qt::Key_E, Qt::Key_R, Qt::Key_I})
        QTest::keyClick(view.get(), key);
    QTest::keyClick(view.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(screen->calls.isEmpty()) << screen->calls.join(u' ').toStdString();
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_M, Qt::Key_B, Qt::Key_BracketLeft})
        QTest::keyClick(view.get(), key);
    QTest::keyClick(view.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(screen->calls.join(u' ').toStdString(), "wand showMask background -1 save");
}

TEST_F(EditScreenLayout, ADragOnTheDialTurnsItAndALayoutDoesNot)
{
    Listener listener;
    open(false, QSize(390, 844));
    screen->dial->setDelegate(&listener);
    const QPoint start = dialCentre() + QPoint(60, 0);
    QTest::mousePress(view.get(), Qt::LeftButton, {}, start);
    for (int x = 0; x <= 80; x += 8)
        QTest::mouseMove(view.get(), start - QPoint(x, 0));
    ASSERT_FALSE(listener.values.empty());
    const double dragged = listener.values.back();
    EXPECT_GT(dragged, 0.3);
    // Far past the right end: the strip gives way, the value doesn't.
    for (int x = 80; x <= 200; x += 8)
        QTest::mouseMove(view.get(), start - QPoint(x, 0));
    QTest::mouseRelease(view.get(), Qt::LeftButton, {}, start - QPoint(200, 0));
    for (const double value : listener.values)
        EXPECT_TRUE(value >= 0.0 && value <= 1.0) << value;

    // A turned device moves the strip by itself, and that is nobody's wish.
    screen->dial->scrollToValue(0.5);
    listener.values.clear();
    view->resize(844, 390);
    QTest::qWait(50);
    screen->dial->layoutIfNeeded();
    QTest::qWait(50);
    EXPECT_TRUE(listener.values.empty());
    EXPECT_NEAR(screen->dial->value(), 0.5, 1e-9);
}

TEST_F(EditScreenLayout, WheelAndKeysTurnTheDialAndTellItsDelegate)
{
    Listener listener;
    open(false, QSize(1280, 800));
    screen->dial->setDelegate(&listener);
    const QPointF at = dialCentre();
    QWheelEvent wheel(at, view->mapToGlobal(at), {}, QPoint(0, 240), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.get(), &wheel);
    EXPECT_NEAR(screen->dial->value(), 0.22, 1e-9);

    QQuickItem* slider = nullptr;
    visit(view->rootObject(), [&](QQuickItem* item) {
        if (item->property("dial").isValid() && item->activeFocusOnTab())
            slider = item;
    });
    ASSERT_NE(slider, nullptr);
    slider->forceActiveFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Right})
        QTest::keyClick(view.get(), key);
    EXPECT_DOUBLE_EQ(screen->dial->value(), 1.0);
    EXPECT_EQ(listener.values.size(), 5U);
    QTest::keyClick(view.get(), Qt::Key_Home);
    EXPECT_DOUBLE_EQ(screen->dial->value(), 0.0);
}

TEST_F(EditScreenLayout, WhatLandsOnAControlNeverReachesThePicture)
{
    open(true, QSize(390, 844));
    ASSERT_EQ(openPanel().size(), 3U);
    Picture::presses = 0;
    Picture::wheelTurns = 0;
    static QPointingDevice* touchScreen = QTest::createTouchDevice();
    const auto press = [&](QPoint at) {
        // Two fingers, the second one also where the first is already held by a control.
        QTest::touchEvent(view.get(), touchScreen).press(0, at);
        QTest::touchEvent(view.get(), touchScreen).stationary(0).press(1, at + QPoint(3, 3));
        QTest::touchEvent(view.get(), touchScreen).release(0, at).release(1, at + QPoint(3, 3));
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, at);
        QTest::mouseClick(view.get(), Qt::MiddleButton, {}, at);
        QWheelEvent wheel(at, view->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view.get(), &wheel);
    };
    const QPoint panel = screen->brushAdjustFrame.center().toPoint();
    const QPoint bar(195, view->height() - 70);
    for (const QPoint at : {QPoint(150, 20), bar, bar + QPoint(0, 20), dialCentre(), panel,
                            centreOf(buttons()[0]), centreOf(buttons()[3])}) {
        press(at);
        EXPECT_EQ(Picture::presses, 0) << at.x() << ", " << at.y();
        EXPECT_EQ(Picture::wheelTurns, 0) << at.x() << ", " << at.y();
        Picture::presses = Picture::wheelTurns = 0;
    }
    press(QPoint(195, 300));
    EXPECT_EQ(Picture::presses, 4);
    EXPECT_EQ(Picture::wheelTurns, 1);
}

TEST_F(EditScreenLayout, AFingerTurnsTheDial)
{
    Listener listener;
    open(false, QSize(390, 844));
    screen->dial->setDelegate(&listener);
    static QPointingDevice* touchScreen = QTest::createTouchDevice();
    // From the edge of a target of forty-four points around a dial of thirty-two.
    const QPoint start = dialCentre() + QPoint(60, -22);
    QTest::touchEvent(view.get(), touchScreen).press(0, start);
    for (int x = 0; x <= 80; x += 8) {
        QTest::touchEvent(view.get(), touchScreen).move(0, start - QPoint(x, 0));
        QTest::qWait(20); // a window hands on moves once a frame
    }
    ASSERT_FALSE(listener.values.empty());
    EXPECT_GT(listener.values.back(), 0.3);
    QTest::touchEvent(view.get(), touchScreen).release(0, start - QPoint(80, 0));
}

TEST_F(EditScreenLayout, TheBrushPanelStandsInReachAndReportsToItsOwner)
{
    for (const QSize size : {QSize(360, 640), QSize(844, 390)}) {
        open(true, size);
        std::vector<double> offsets;
        std::vector<BrushType> types;
        screen->panel.offsetChangedBlock = [&](double value) { offsets.push_back(value); };
        screen->panel.brushTypeChangedBlock = [&](BrushType type) { types.push_back(type); };
        const std::vector<QQuickItem*> shapes = openPanel();
        ASSERT_EQ(shapes.size(), 3U);
        for (QQuickItem* shape : shapes)
            QTest::mouseClick(view.get(), Qt::LeftButton, {}, centreOf(shape));
        EXPECT_EQ(types, (std::vector{BrushType::circle, BrushType::triangle, BrushType::square}));

        QQuickItem* slider = nullptr;
        visit(view->rootObject(), [&](QQuickItem* item) {
            if (!slider && item->inherits("QQuickSlider"))
                slider = item;
        });
        ASSERT_NE(slider, nullptr);
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, centreOf(slider));
        ASSERT_FALSE(offsets.empty());
        EXPECT_NEAR(offsets.back(), 0.5, 0.1);
        slider->forceActiveFocus(Qt::TabFocusReason);
        for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_End, Qt::Key_Right})
            QTest::keyClick(view.get(), key);
        EXPECT_DOUBLE_EQ(offsets.back(), 1.0);

        // Closed, it neither stands in the way nor takes a press while it leaves.
        types.clear();
        screen->brushAdjustView = nullptr;
        Q_EMIT screen->changed();
        QTest::mouseClick(view.get(), Qt::LeftButton, {}, centreOf(shapes[1]));
        EXPECT_TRUE(types.empty());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !shapes[0]->isVisible(); }));
    }
}

TEST_F(EditScreenLayout, ThePhotoIsWorkedWithKeysAndLedBackToWithEscape)
{
    open(true, QSize(390, 844));
    view->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    QQuickItem* photo = view->activeFocusItem();
    ASSERT_NE(dynamic_cast<Picture*>(photo), nullptr);
    QTest::keyClick(view.get(), Qt::Key_Left);
    QTest::keyClick(view.get(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(view.get(), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(view.get(), Qt::Key_Return);
    QTest::keyClick(view.get(), Qt::Key_Space);
    EXPECT_EQ(screen->calls.join(u' ').toStdString(),
              "aim-1,0 stride0,1 view0,-1 press hold release");
    screen->calls.clear();
    QTest::keyClick(view.get(), Qt::Key_Tab);
    EXPECT_NE(view->activeFocusItem(), photo);
    QTest::keyClick(view.get(), Qt::Key_Left);
    EXPECT_EQ(screen->calls.join(u' ').toStdString(), "leave");
    QTest::keyClick(view.get(), Qt::Key_Escape);
    EXPECT_EQ(view->activeFocusItem(), photo);
}

TEST_F(EditScreenLayout, AQuestionIsAllThatKeysAndScreenReadersFind)
{
    const auto of = [](QAccessible::Role role, const char* name) {
        return QString::number(role) + u' ' + QLatin1String(name);
    };
    QAccessible::setActive(true);
    open(true, QSize(390, 844));
    QQuickItem* photo = view->activeFocusItem();
    const QStringList before = exposed();
    EXPECT_TRUE(before.contains(of(QAccessible::Canvas, "Photo")));
    EXPECT_TRUE(before.contains(of(QAccessible::CheckBox, "Erase")));

    int accepted = 0;
    const auto ask = [&] {
        screen->alert.show({QStringLiteral("Title"), QStringLiteral("Message"),
                            QStringLiteral("No"), QStringLiteral("Yes")},
                           [&] { ++accepted; });
    };
    ask();
    const QStringList question{of(QAccessible::Pane, ""),
                               of(QAccessible::Dialog, "Title"),
                               of(QAccessible::StaticText, "Title"),
                               of(QAccessible::StaticText, "Message"),
                               of(QAccessible::Button, "No"),
                               of(QAccessible::Button, "Yes")};
    EXPECT_TRUE(QTest::qWaitFor([&] { return exposed().mid(1) == question; }))
        << exposed().join(u'\n').toStdString();
    // Round and back.
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab}) {
        QTest::keyClick(view.get(), key);
        EXPECT_TRUE(view->activeFocusItem()->inherits("QQuickAbstractButton"));
    }
    QTest::keyClick(view.get(), Qt::Key_Escape);
    EXPECT_EQ(view->activeFocusItem(), photo);
    EXPECT_TRUE(QTest::qWaitFor([&] { return exposed() == before; }));

    // Asked again, nothing is left of where the keyboard was: Enter accepts.
    ask();
    QTest::keyClick(view.get(), Qt::Key_Return);
    EXPECT_EQ(accepted, 1);
}

TEST_F(EditScreenLayout, TheThemeShowsThePalette)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Pelmira.Ui\nQtObject {\n"
                      "property color red: Theme.deleteRed; property color blue: Theme.buttonBlue\n"
                      "property color selected: Theme.selected\n"
                      "property color minimum: Theme.sliderMinTrackColor\n"
                      "property color maximum: Theme.sliderMaxTrackColor }",
                      QUrl());
    const std::unique_ptr<QObject> theme(component.create());
    ASSERT_NE(theme, nullptr) << component.errorString().toStdString();
    EXPECT_EQ(theme->property("red").value<QColor>(), StyleUtil::deleteRed());
    EXPECT_EQ(theme->property("blue").value<QColor>(), StyleUtil::buttonBlue());
    EXPECT_EQ(theme->property("selected").value<QColor>(), StyleUtil::selectedTint());
    EXPECT_EQ(theme->property("minimum").value<QColor>(), StyleUtil::sliderMinTrackColor());
    EXPECT_EQ(theme->property("maximum").value<QColor>(), StyleUtil::sliderMaxTrackColor());
}

} // namespace
} // namespace pelmira
