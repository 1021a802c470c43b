#pragma once

#include "platform/base/RunLoop.h"
#include "platform/camera/Camera.h"

#include <QImage>
#include <QtPlugin>

#include <memory>

namespace pelmira {

/// What the plugin asks of the program that has loaded it, so as to have no threads of its own.
struct CameraHost {
    Queue& mainQueue;
    Queue& background;
    QImage (*bitmapForm)(QImage); ///< see makeBitmapForm
};

/// The root object of the plugin, which brings Qt Multimedia with it: a program that takes no photo
/// doesn't load that.
class CameraPlugin {
public:
    virtual ~CameraPlugin() = default;

    /// Null where Qt Multimedia finds nothing to work with.
    virtual std::unique_ptr<Camera> makeCamera(CameraHost host) = 0;
};

} // namespace pelmira

Q_DECLARE_INTERFACE(pelmira::CameraPlugin, "org.pelmira.CameraPlugin/1")
