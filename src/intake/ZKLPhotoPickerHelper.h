#pragma once

#include "intake/CameraPicker.h"
#include "intake/FileDialogs.h"
#include "platform/screen/ScreenStack.h"

#include <QImage>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace pelmira {

/// Picks one picture for whoever asks: from the library, through the crop tool, or from the camera.
/// One pick at a time in the process. Main thread only.
class ZKLPhotoPickerHelper {
public:
    /// Gets the picture, upright, its longer side between 32 pixels and the upper bound. The
    /// screens of the pick still stand: who gets the picture takes them away.
    using Completion = std::function<void(const QImage&)>;

    /// What of the system the screens need.
    struct Services {
        FileDialogs dialogs;
        CameraPicker::CameraMaker makeCamera;
        std::function<void(std::function<void(bool)>)> requestCameraAccess; ///< optional
    };

    explicit ZKLPhotoPickerHelper(Services services);

    /// The process's own. Its services are given at launch.
    static ZKLPhotoPickerHelper& shared();
    /// So that the first pick doesn't pay for it.
    static void warmup();
    void setServices(Services services) { _services = std::move(services); }

    /// Whoever cancels is taken back, and the completion isn't called; neither is that of a pick
    /// which is asked for while another's screens still stand: it doesn't begin.
    void choosePhotoWithPresentingVC(ScreenStack& presentingVC, Completion completion);
    /// Goes through the crop tool if a pick from the library went before.
    void takePhotoWithPresentingVC(ScreenStack& presentingVC, Completion completion);

    /// Of the pick under way; the device's own if nothing is set. In pixels.
    std::optional<double> maxImageDim;

private:
    enum class Source { Library, Camera };

    bool begin(ScreenStack& presentingVC, Completion completion);
    void didFinishPickingMedia(const QImage& image);
    void didCancel();
    void crop(const QImage& image);
    void goOn(const QImage& image);
    QImage sized(const QImage& image) const;

    Services _services;
    ScreenStack* _presentingVC = nullptr;
    Completion _photoCompletion;
    bool _shouldCrop = false;
    Source _source = Source::Library;
    std::weak_ptr<Screen> _picker; ///< lives as long as it is presented
};

} // namespace pelmira
