#include "intake/CameraPicker.h"
#include "platform/camera/CameraPlugin.h"
#include "platform/camera/SystemCamera.h"
#include "platform/quick/ViewfinderView.h"
#include "platform/text/LocalizedStrings.h"
#include "support/FakeCamera.h"
#include "support/ShownScreen.h"
#include "support/Test.h"

#include <QPluginLoader>

namespace pelmira {
namespace {

TEST(CameraScreenLayout, ItShootsByTouchMouseAndKeyAtEverySize)
{
    auto* camera = new test::FakeCamera;
    camera->plugged = {{"1", QStringLiteral("A")}, {"2", QStringLiteral("B")}};
    const auto picker =
        std::make_shared<CameraPicker>([camera] { return std::unique_ptr<Camera>(camera); });
    int cancelled = 0;
    picker->didCancel = [&] { ++cancelled; };
    test::ShownScreen shown(picker, {390, 844});

    int captures = 0;
    const auto live = [&] {
        picker->viewDidAppear(false);
        Q_EMIT camera->frame(plainImage({64, 48}, Qt::red));
    };
    for (const QSize size : {QSize(390, 844), QSize(844, 390), QSize(1280, 800)}) {
        shown.window.resize(size);
        ASSERT_TRUE(waitFor([&] { return picker->viewSize() == size; }));
        for (const char* name :
             {"camera.button.shutter", "camera.button.switch", "camera.button.cancel"}) {
            live();
            QQuickItem* button = shown.button(localized(QString::fromLatin1(name)));
            ASSERT_NE(button, nullptr) << name;
            EXPECT_TRUE(QRectF({}, size).contains(shown.frameOf(button))) << name;
            shown.click(button);
        }
        EXPECT_EQ(camera->captures, ++captures);
    }
    EXPECT_EQ(cancelled, 3);
    live();
    shown.navigation.setEnabled(false); // a question stands over all screens
    shown.key(Qt::Key_Space);
    EXPECT_EQ(camera->captures, captures);
    shown.navigation.setEnabled(true);
    shown.key(Qt::Key_Space);
    EXPECT_EQ(camera->captures, ++captures);
    shown.key(Qt::Key_Escape);
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

TEST(CameraPluginTest, ItLoadsIntoAProgramThatLinksNoneOfIt)
{
#ifdef CAMERA_PLUGIN
    QPluginLoader loader(QStringLiteral(CAMERA_PLUGIN));
    EXPECT_TRUE(qobject_cast<CameraPlugin*>(loader.instance())) << qPrintable(loader.errorString());
#else
    GTEST_SKIP() << "built without Qt Multimedia";
#endif
}

TEST(CameraPluginTest, WithoutItOrWithADamagedOneThereIsNoCamera)
{
    const TemporaryFolder folder;
    const QString damaged = folder.write("pelmira-camera.so", "not a library");
    for (const QString& path : {damaged, folder.path("none.so")})
        EXPECT_TRUE(makeSystemCamera(path)->devices().isEmpty());
}

} // namespace
} // namespace pelmira
