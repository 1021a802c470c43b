#pragma once

#include "platform/camera/CameraPlugin.h"

#include <QObject>

namespace pelmira {

class MultimediaPlugin final : public QObject, public CameraPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.pelmira.CameraPlugin/1")
    Q_INTERFACES(pelmira::CameraPlugin)

public:
    std::unique_ptr<Camera> makeCamera(CameraHost host) override;
};

} // namespace pelmira
