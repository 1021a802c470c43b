#include "platform/camera/SystemCamera.h"

#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/camera/CameraPlugin.h"
#include "platform/image/Image.h"

#include <QCoreApplication>
#include <QFile>
#include <QPluginLoader>

namespace pelmira {
namespace {

class NoCamera final : public Camera {
public:
    QList<CameraDevice> devices() const override { return {}; }
    void start(const QByteArray&) override {}
    void stop() override {}
    void capture() override {}
};

} // namespace

QString cameraPluginPath()
{
    // As it is installed, and in the build folder as well.
    return QCoreApplication::applicationDirPath() + QStringLiteral("/" PELMIRA_CAMERA_PLUGIN);
}

std::unique_ptr<Camera> makeSystemCamera(const QString& pluginPath)
{
    if (QFile::exists(pluginPath)) {
        QPluginLoader loader(pluginPath);
        if (auto* plugin = qobject_cast<CameraPlugin*>(loader.instance())) {
            if (auto camera = plugin->makeCamera(
                    {mainQueue(), globalQueue(QueuePriority::UserInitiated), &makeBitmapForm}))
                return camera;
        } else {
            logLine("the camera's plugin can't be loaded: %s", qPrintable(loader.errorString()));
        }
    }
    return std::make_unique<NoCamera>();
}

} // namespace pelmira
