#include "platform/camera/CameraPlugin.h"
#include "platform/camera/SystemCamera.h"
#include "support/TemporaryFolder.h"

#include <QPluginLoader>

#include <gtest/gtest.h>

namespace pelmira {
namespace {

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
    const test::TemporaryFolder folder;
    const QString damaged = folder.write("pelmira-camera.so", "not a library");
    for (const QString& path : {damaged, folder.path("none.so")})
        EXPECT_TRUE(makeSystemCamera(path)->devices().isEmpty());
}

} // namespace
} // namespace pelmira
