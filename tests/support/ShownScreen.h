#pragma once

#include "platform/quick/GLKView.h"
#include "platform/quick/NavigationController.h"
#include "platform/quick/PlatformTypes.h"
#include "shell/ScreenTypes.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QAccessible>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

namespace pelmira::test {

/// Draws its frames and shows none: the scene of a test has no GL to show them with.
class UnseenView : public GLKView {
    QSGNode* updatePaintNode(QSGNode*, UpdatePaintNodeData*) override { return nullptr; }
};

/// A screen of the application in a window, on the stack that loads its layout and calls its
/// life-cycle operations. Fingers, mouse and keys come the way that the platform's come. Whatever
/// the layout complains of fails the test.
class ShownScreen {
public:
    ShownScreen(std::shared_ptr<Screen> screen, QSize size)
    {
        registerPlatformTypes();
        registerScreenTypes();
        qmlRegisterType<UnseenView>("Pelmira", 1, 0, "GLKView");
        QObject::connect(&engine, &QQmlEngine::warnings, [](const QList<QQmlError>& list) {
            for (const QQmlError& error : list)
                ADD_FAILURE() << error.toString().toStdString();
        });
        QObject::connect(
            &window, &QQuickWindow::frameSwapped, &window, [this] { ++_frames; },
            Qt::QueuedConnection);
        window.resize(size);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        navigation.setRoot(std::move(screen));
        EXPECT_NE(navigation.topScreen(), nullptr);
        waitForFrame();
    }

    /// A frame, and what was to be done after it.
    void waitForFrame()
    {
        const int before = _frames;
        window.update();
        EXPECT_TRUE(test::waitFor([&] { return _frames > before; }));
        QCoreApplication::sendPostedEvents();
    }

    /// All that is to be seen, in the order in which it lies over one another.
    std::vector<QQuickItem*> items()
    {
        std::vector<QQuickItem*> found;
        collect(window.contentItem(), found);
        return found;
    }
    std::vector<QQuickItem*> itemsOf(const char* kind)
    {
        std::vector<QQuickItem*> found = items();
        std::erase_if(found, [&](QQuickItem* item) { return !item->inherits(kind); });
        return found;
    }
    std::vector<QQuickItem*> buttons() { return itemsOf("QQuickAbstractButton"); }
    QQuickItem* button(const QString& text)
    {
        for (QQuickItem* item : buttons())
            if (item->property("text").toString() == text)
                return item;
        return nullptr;
    }
    /// What assistive technology finds, in the order of reading.
    void eachExposed(const std::function<void(QAccessibleInterface&)>& look)
    {
        const std::function<void(QAccessibleInterface&)> descend = [&](QAccessibleInterface& item) {
            if (item.state().invisible)
                return;
            look(item);
            for (int i = 0; i < item.childCount(); ++i)
                descend(*item.child(i));
        };
        descend(*QAccessible::queryAccessibleInterface(&window));
    }
    static QRectF frameOf(QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }
    static QPoint centreOf(QQuickItem* item) { return frameOf(item).center().toPoint(); }

    void click(QQuickItem* item) { QTest::mouseClick(&window, Qt::LeftButton, {}, centreOf(item)); }
    void click(const QString& text)
    {
        QQuickItem* item = button(text);
        ASSERT_NE(item, nullptr) << text.toStdString();
        click(item);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&window, key, modifiers);
    }
    void wheel(QPointF at, QPoint eighthsOfDegrees, Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent event(at, window.mapToGlobal(at), {}, eighthsOfDegrees, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
    }
    auto touch() { return QTest::touchEvent(&window, finger.get()); }
    /// One finger's way, a frame for each step of it: a window hands on moves once a frame.
    void drag(QPoint from, QPoint to, int steps = 10)
    {
        touch().press(0, from);
        for (int i = 1; i <= steps; ++i) {
            touch().move(0, from + (to - from) * i / steps);
            waitForFrame();
        }
        touch().release(0, to);
    }

    const std::unique_ptr<QPointingDevice> finger{QTest::createTouchDevice()};
    QQuickWindow window;
    QQmlEngine engine;
    NavigationController navigation{window, engine};

private:
    static void collect(QQuickItem* item, std::vector<QQuickItem*>& found)
    {
        if (!item->isVisible())
            return;
        found.push_back(item);
        for (QQuickItem* child : item->childItems())
            collect(child, found);
    }

    int _frames = 0;
};

} // namespace pelmira::test
