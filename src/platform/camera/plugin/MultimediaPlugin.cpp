#include "platform/camera/plugin/MultimediaPlugin.h"

#include "platform/camera/plugin/MultimediaCamera.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

/// Qt Multimedia ends the program when it finds no plugin to work with.
bool canWork()
{
    const QStringList paths = QCoreApplication::libraryPaths();
    return std::any_of(paths.begin(), paths.end(), [](const QString& path) {
        return !QDir(path + QStringLiteral("/multimedia")).isEmpty(QDir::Files);
    });
}

} // namespace

std::unique_ptr<Camera> MultimediaPlugin::makeCamera(CameraHost host)
{
    return canWork() ? std::make_unique<MultimediaCamera>(std::move(host)) : nullptr;
}

} // namespace pelmira
