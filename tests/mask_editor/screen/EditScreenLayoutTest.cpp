#include "controls/Alert.h"
#include "controls/ZKLScrollDial.h"
#include "mask_editor/screen/BackgroundPreview.h"
#include "mask_editor/screen/ToolBars.h"
#include "platform/quick/TouchArea.h"
#include "support/ShownEditor.h"

namespace pelmira {
namespace {

constexpr QPoint onThePhoto(195, 300); // in a window of 390 x 844
const QSize phone(390, 844);

struct EditScreenLayout : testing::Test, test::ShownEditor {
    ZKLScrollDial& dial() { return editor.dial(); }
    QQuickItem* dialItem()
    {
        for (QQuickItem* item : shown->items())
            if (item->property("dial").isValid() && item->activeFocusOnTab())
                return item;
        return nullptr;
    }
    QPoint dialCentre() { return test::ShownScreen::centreOf(dialItem()); }
    /// Opens the brush panel, waits until its spring rests, and gives its shape buttons.
    std::vector<QQuickItem*> openPanel()
    {
        editor.press("brush");
        std::vector<QQuickItem*> shapes;
        const bool rests = waitFor([&] {
            shapes = shown->buttons();
            std::erase_if(shapes, [](QQuickItem* b) { return !b->property("panel").isValid(); });
            return !shapes.empty() && test::ShownScreen::frameOf(shapes[0]).top() ==
                                          editor.brushAdjustFrame().top() + 8.0;
        });
        return rests ? shapes : std::vector<QQuickItem*>();
    }
    /// For assistive technology, as "role name".
    QStringList exposed()
    {
        QStringList found;
        shown->eachExposed([&](QAccessibleInterface& item) {
            found << QString::number(item.role()) + u' ' + item.text(QAccessible::Name);
        });
        return found;
    }
};

TEST_F(EditScreenLayout, ButtonsAreNamedLargeEnoughInsideTheWindowAndApart)
{
    for (const QSize size : {phone, QSize(844, 390), QSize(1280, 800), QSize(360, 640)}) {
        open(size);
        const std::vector<QQuickItem*> all = shown->buttons();
        EXPECT_EQ(all.size(), 11U);
        for (QQuickItem* button : all) {
            const QRectF frame = shown->frameOf(button);
            const std::string name = button->property("text").toString().toStdString();
            EXPECT_FALSE(name.empty());
            EXPECT_GE(frame.width(), 44.0) << name;
            EXPECT_GE(frame.height(), 44.0) << name;
            EXPECT_TRUE(QRectF(QPointF(), QSizeF(size)).contains(frame)) << name;
            for (QQuickItem* other : all)
                EXPECT_TRUE(other == button || !frame.intersects(shown->frameOf(other))) << name;
        }
        EXPECT_LT(editor.bars().topBarBottom() + editor.bars().bottomBarHeight(),
                  0.45 * size.height());
        EXPECT_LE(editor.bars().dialFrame().width(), 640.0);
        EXPECT_TRUE(shown->frameOf(dialItem()).width() > 0.8 * std::min(size.width(), 640));
    }
}

TEST_F(EditScreenLayout, EachButtonAndItsKeyDoTheSame)
{
    int saves = 0;
    int helps = 0;
    editor.presentSaveViewBlock() = [&](const auto&) { ++saves; };
    editor.presentHelpBlock() = [&] { ++helps; };
    const auto colour = [&] { return editor.changeBackgroundView().backgroundColor(); };
    const auto levelCount = [&] { return double(levels()); };
    const auto mode = [&] { return double(editor.mode()); };
    const auto isMaskShown = [&] { return editor.button("showMask").isSelected(); };
    struct Case {
        const char* button;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        std::function<double()> state;
        double first;  ///< after a click on the button
        double second; ///< after the key
    };
    const std::vector<Case> cases{
        {"Undo", Qt::Key_Z, Qt::ControlModifier, levelCount, 0, 0}, // there is nothing yet
        {"Invert", Qt::Key_I, {}, levelCount, 1, 2},
        {"Undo", Qt::Key_Z, Qt::ControlModifier, levelCount, 1, 0},
        {"Erase", Qt::Key_R, {}, mode, ModeErase, ModeReplace},
        {"Magic wand", Qt::Key_E, {}, mode, ModeWand, ModeErase},
        {"Restore", Qt::Key_W, {}, mode, ModeReplace, ModeWand},
        {"Show what was removed", Qt::Key_M, {}, isMaskShown, 1, 0},
        {"Next background", Qt::Key_B, {}, [&] { return colour().lightnessF(); }, 1, 0},
        {"Save", Qt::Key_S, Qt::ControlModifier, [&] { return saves; }, 1, 2},
        {"Help", Qt::Key_F1, {}, [&] { return helps; }, 1, 2},
    };
    for (const Case& each : cases) {
        shown->click(QString::fromLatin1(each.button));
        EXPECT_EQ(each.state(), each.first) << each.button;
        shown->key(each.key, each.modifiers);
        EXPECT_EQ(each.state(), each.second) << each.button;
    }
    // Off the screen, a preview of the background has no key either.
    editor.bars().setShowTools(false);
    editor.press("erasor");
    const double size = dial().value();
    shown->key(Qt::Key_BracketRight);
    EXPECT_GT(dial().value(), size);
}

TEST_F(EditScreenLayout, MouseFingerWheelAndKeysTurnTheDialAndALayoutDoesNot)
{
    editor.press("erasor");
    const auto isTold = [&] {
        return std::abs(engine().brush.unitBrushSize() - dial().value()) < 1e-6;
    };
    dial().scrollToValue(0.2);
    const QPoint start = dialCentre() + QPoint(60, 0);
    QTest::mousePress(&shown->window, Qt::LeftButton, {}, start);
    for (int x = 0; x <= 80; x += 8)
        QTest::mouseMove(&shown->window, start - QPoint(x, 0));
    EXPECT_TRUE(isTold());
    // Far past the right end: the strip gives way, the value doesn't.
    for (int x = 80; x <= 200; x += 8)
        QTest::mouseMove(&shown->window, start - QPoint(x, 0));
    EXPECT_LE(dial().value(), 1.0);
    QTest::mouseRelease(&shown->window, Qt::LeftButton, {}, start - QPoint(200, 0));

    // From the edge of a target of forty-four points around a dial of thirty-two.
    dial().scrollToValue(0.2);
    shown->drag(start + QPoint(0, -22), start + QPoint(-80, -22));
    EXPECT_GT(dial().value(), 0.3);
    EXPECT_TRUE(isTold());

    dial().scrollToValue(0.2);
    shown->wheel(dialCentre(), {0, 240});
    EXPECT_NEAR(dial().value(), 0.22, 1e-9);
    EXPECT_TRUE(isTold());
    dialItem()->forceActiveFocus(Qt::TabFocusReason);
    shown->key(Qt::Key_PageUp);
    EXPECT_NEAR(dial().value(), 0.32, 1e-9);
    EXPECT_TRUE(isTold());

    // A turned device moves the strip by itself, and that is nobody's wish.
    dial().scrollToValue(0.5);
    shown->window.resize(844, 390);
    ASSERT_TRUE(waitFor([&] { return editor->viewSize() == QSizeF(844, 390); }));
    shown->waitForFrame();
    EXPECT_NEAR(dial().value(), 0.5, 1e-9);
}

TEST_F(EditScreenLayout, WhatLandsOnAControlNeverReachesThePhoto)
{
    editor.press("erasor");
    const std::vector<QQuickItem*> shapes = openPanel();
    ASSERT_EQ(shapes.size(), 3U);
    // Two fingers, the second one also where the first is already held by a control; a click of
    // each button, a drag, and a turn of the wheel, which all mean something on the photo.
    const auto press = [&](QPoint at) {
        shown->touch().press(0, at);
        shown->touch().stationary(0).press(1, at + QPoint(3, 3));
        shown->touch().release(0, at).release(1, at + QPoint(3, 3));
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
            QTest::mousePress(&shown->window, button, {}, at);
            QTest::mouseMove(&shown->window, at + QPoint(9, 0));
            QTest::mouseRelease(&shown->window, button, {}, at + QPoint(9, 0));
        }
        shown->wheel(at, {0, 120});
    };
    const auto place = [&] {
        const FgImage& photo = engine().canvas.fgImage;
        return std::pair(photo.center, photo.scale);
    };
    const QImage whole = cutOut();
    const auto unmoved = place();
    const QPoint bar(195, shown->window.height() - 70);
    // The bar last: a press there closes the panel.
    for (const QPoint at :
         {editor.brushAdjustFrame().center().toPoint(), test::ShownScreen::centreOf(shapes[1]),
          QPoint(150, 20), dialCentre(), bar + QPoint(0, 20), bar}) {
        press(at);
        EXPECT_EQ(cutOut(), whole) << at.x() << ", " << at.y();
        EXPECT_EQ(place(), unmoved) << at.x() << ", " << at.y();
    }
    press(onThePhoto);
    EXPECT_NE(cutOut(), whole);
    EXPECT_NE(place(), unmoved);
}

TEST_F(EditScreenLayout, TheBrushPanelStandsInReachAndSetsTheBrush)
{
    for (const QSize size : {QSize(360, 640), QSize(844, 390)}) {
        open(size);
        const std::vector<QQuickItem*> shapes = openPanel();
        ASSERT_EQ(shapes.size(), 3U);
        for (const int type : {2, 1, 0}) {
            shown->click(shapes[std::size_t(type)]);
            EXPECT_EQ(engine().brush.brushType(), type);
        }
        QQuickItem* slider = shown->itemsOf("QQuickSlider").at(0);
        shown->click(slider);
        EXPECT_NEAR(engine().brush.unitBrushOffset(), 0.5, 0.1);
        slider->forceActiveFocus(Qt::TabFocusReason);
        for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_End, Qt::Key_Right})
            shown->key(key);
        EXPECT_FLOAT_EQ(float(engine().brush.unitBrushOffset()), 1.0F);

        // Closed, it neither stands in the way nor takes a press while it leaves.
        editor.press("brush");
        shown->click(shapes[1]);
        EXPECT_EQ(engine().brush.brushType(), 0);
        EXPECT_TRUE(waitFor([&] { return !shapes[0]->isVisible(); }));
    }
}

TEST_F(EditScreenLayout, ThePhotoIsWorkedWithKeysAndLedBackToWithEscape)
{
    QQuickItem* photo = shown->window.activeFocusItem();
    ASSERT_NE(dynamic_cast<TouchArea*>(photo), nullptr);
    const QPointF centre = engine().canvas.fgImage.center;
    shown->key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(engine().canvas.fgImage.center.x(), centre.x());
    EXPECT_NE(engine().canvas.fgImage.center.y(), centre.y());
    shown->key(Qt::Key_Down, Qt::ControlModifier);

    const double scale = engine().canvas.fgImage.scale;
    shown->key(Qt::Key_Plus);
    EXPECT_NEAR(engine().canvas.fgImage.scale, 1.1 * scale, 1e-9);
    shown->key(Qt::Key_Minus);

    // A dab, and a stroke under the held space bar.
    editor.press("erasor");
    shown->key(Qt::Key_Left);
    shown->key(Qt::Key_Space);
    EXPECT_EQ(levels(), 0U);
    QTest::keyPress(&shown->window, Qt::Key_Space);
    shown->key(Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyRelease(&shown->window, Qt::Key_Space);
    EXPECT_EQ(levels(), 1U);
    const QImage erased = cutOut();
    EXPECT_EQ(qAlpha(erased.pixel(98, 100)), 0);

    // The wand's finger lifts with Enter, and not where the keyboard has gone elsewhere before.
    editor.press("wand");
    shown->key(Qt::Key_Left, Qt::ShiftModifier);
    shown->key(Qt::Key_Tab);
    EXPECT_NE(shown->window.activeFocusItem(), photo);
    EXPECT_EQ(cutOut(), erased);
    shown->key(Qt::Key_Escape);
    EXPECT_EQ(shown->window.activeFocusItem(), photo);
    for (int i = 0; i < 2; ++i)
        shown->key(Qt::Key_Left, Qt::ShiftModifier);
    shown->key(Qt::Key_Return);
    EXPECT_EQ(qAlpha(cutOut().pixel(5, 5)), 0);

    // Under another screen it still learns that a pen has gone.
    const EditorScreen above(*defaults, [] { return nullptr; });
    shown->navigation.presentViewController(above.screen(), ModalPresentationStyle::FormSheet);
    EXPECT_EQ(shown->navigation.touchResponders().size(), 2U);
}

TEST_F(EditScreenLayout, AQuestionIsAllThatKeysAndScreenReadersFind)
{
    const auto of = [](QAccessible::Role role, const char* name) {
        return QString::number(role) + u' ' + QLatin1String(name);
    };
    QAccessible::setActive(true);
    open(phone);
    QQuickItem* photo = shown->window.activeFocusItem();
    const QStringList before = exposed();
    EXPECT_TRUE(before.contains(of(QAccessible::Canvas, "Photo")));
    EXPECT_TRUE(before.contains(of(QAccessible::CheckBox, "Erase")));

    int accepted = 0;
    const auto ask = [&] {
        editor.alert().show({QStringLiteral("Title"), QStringLiteral("Message"),
                             QStringLiteral("No"), QStringLiteral("Yes")},
                            [&] { ++accepted; });
    };
    ask();
    const QStringList question{of(QAccessible::Dialog, "Title"),
                               of(QAccessible::StaticText, "Title"),
                               of(QAccessible::StaticText, "Message"),
                               of(QAccessible::Button, "No"), of(QAccessible::Button, "Yes")};
    const auto asked = [&] {
        QStringList found = exposed();
        return found.mid(found.indexOf(question[0])) == question &&
               !found.contains(of(QAccessible::CheckBox, "Erase"));
    };
    EXPECT_TRUE(waitFor(asked)) << exposed().join(u'\n').toStdString();
    // Round and back.
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab}) {
        shown->key(key);
        EXPECT_TRUE(shown->window.activeFocusItem()->inherits("QQuickAbstractButton"));
    }
    shown->key(Qt::Key_Escape);
    EXPECT_EQ(shown->window.activeFocusItem(), photo);
    EXPECT_TRUE(waitFor([&] { return exposed() == before; }));

    // Asked again, nothing is left of where the keyboard was: Enter accepts.
    ask();
    shown->key(Qt::Key_Return);
    EXPECT_EQ(accepted, 1);
    QAccessible::setActive(false);
}

} // namespace
} // namespace pelmira
