#include "intake/CameraPicker.h"
#include "platform/quick/PlatformTypes.h"
#include "platform/quick/ViewfinderView.h"
#include "platform/text/LocalizedStrings.h"
#include "support/FakeCamera.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace pelmira {
namespace {

QQuickItem* buttonNamed(QQuickItem* item, const QString& text)
{
    if (item->inherits("QQuickAbstractButton") && item->property("text").toString() == text)
        return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = buttonNamed(child, text))
            return found;
    return nullptr;
}

TEST(CameraScreenLayout, ItShootsByTouchMouseAndKeyAtEverySize)
{
    registerPlatformTypes();
    auto* camera = new test::FakeCamera;
    camera->plugged = {{"1", QStringLiteral("A")}, {"2", QStringLiteral("B")}};
    CameraPicker picker([camera] { return std::unique_ptr<Camera>(camera); });
    int cancelled = 0;
    picker.didCancel = [&] { ++cancelled; };
    QQuickView view;
    QObject::connect(view.engine(), &QQmlEngine::warnings, [](const QList<QQmlError>& list) {
        for (const QQmlError& error : list)
            ADD_FAILURE() << error.toString().toStdString();
    });
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    QQmlEngine::setObjectOwnership(&picker, QQmlEngine::CppOwnership);
    view.setInitialProperties({{QStringLiteral("screen"), QVariant::fromValue<QObject*>(&picker)}});
    view.setSource(picker.layoutFile());
    ASSERT_EQ(view.status(), QQuickView::Ready);
    view.show();
    view.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));

    int captures = 0;
    const auto live = [&] {
        picker.viewDidAppear(false);
        Q_EMIT camera->frame(test::FakeCamera::scene({64, 48}));
    };
    for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(1280, 800)}) {
        view.resize(size);
        ASSERT_TRUE(QTest::qWaitFor([&] { return view.rootObject()->size().toSize() == size; }));
        for (const char* name :
             {"camera.button.shutter", "camera.button.switch", "camera.button.cancel"}) {
            live();
            QQuickItem* button =
                buttonNamed(view.rootObject(), localized(QString::fromLatin1(name)));
            ASSERT_NE(button, nullptr) << name;
            const QRectF frame = button->mapRectToScene(button->boundingRect());
            EXPECT_TRUE(QRectF({}, size).contains(frame)) << name;
            QTest::mouseClick(&view, Qt::LeftButton, {}, frame.center().toPoint());
        }
        EXPECT_EQ(camera->captures, ++captures);
    }
    EXPECT_EQ(cancelled, 3);
    live();
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(camera->captures, ++captures);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(cancelled, 4);
}

TEST(CameraScreenLayout, ThePictureMakesWayForTheControlsIfItCan)
{
    const auto frame = ViewfinderView::frameFor;
    EXPECT_EQ(frame({90, 160}, {90, 200}, {0, 30}), QRectF(0, 5, 90, 160));
    EXPECT_EQ(frame({90, 160}, {90, 180}, {0, 30}), QRectF(0, 0, 90, 160));
    EXPECT_EQ(frame({160, 90}, {90, 160}, {0, 30}), QRectF(0, 39.6875, 90, 50.625));
    EXPECT_EQ(frame({80, 60}, {200, 60}, {20, 0}), QRectF(50, 0, 80, 60));
    EXPECT_EQ(frame({200, 60}, {200, 60}, {20, 0}), QRectF(0, 0, 200, 60));
}

} // namespace
} // namespace pelmira
