#include "platform/camera/SystemCamera.h"

#ifdef PELMIRA_HAS_MULTIMEDIA
#include "platform/camera/MultimediaCamera.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#endif

namespace pelmira {
namespace {

class NoCamera final : public Camera {
public:
    QList<CameraDevice> devices() const override { return {}; }
    void start(const QByteArray&) override {}
    void stop() override {}
    void capture() override {}
};

#ifdef PELMIRA_HAS_MULTIMEDIA
/// Qt Multimedia ends the program when it finds no plugin to work with.
bool hasMultimediaPlugin()
{
    const QStringList paths = QCoreApplication::libraryPaths();
    return std::any_of(paths.begin(), paths.end(), [](const QString& path) {
        return !QDir(path + QStringLiteral("/multimedia")).isEmpty(QDir::Files);
    });
}
#endif

} // namespace

std::unique_ptr<Camera> makeSystemCamera()
{
#ifdef PELMIRA_HAS_MULTIMEDIA
    if (hasMultimediaPlugin())
        return std::make_unique<MultimediaCamera>();
#endif
    return std::make_unique<NoCamera>();
}

} // namespace pelmira
