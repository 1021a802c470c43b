#include "intake/ZKLPhotoPickerHelper.h"

#include "crop/TOCropViewController.h"
#include "intake/PhotoResize.h"
#include "intake/ZKLPhotoPicker.h"
#include "mask_editor/limits/PlatformUtils.h"
#include "platform/base/Log.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double smallestSide = 32.0;

} // namespace

ZKLPhotoPickerHelper::ZKLPhotoPickerHelper(Services services) : _services(std::move(services))
{
}

ZKLPhotoPickerHelper& ZKLPhotoPickerHelper::shared()
{
    static ZKLPhotoPickerHelper helper{Services()};
    return helper;
}

void ZKLPhotoPickerHelper::warmup()
{
    logLine("%p", static_cast<void*>(&shared()));
}

bool ZKLPhotoPickerHelper::begin(ScreenStack& presentingVC, Completion completion)
{
    if (!_picker.expired()) {
        logLine("ZKLPhotoPickerHelper already visible");
        return false;
    }
    maxImageDim.reset();
    _photoCompletion = std::move(completion);
    _presentingVC = &presentingVC;
    return true;
}

void ZKLPhotoPickerHelper::choosePhotoWithPresentingVC(ScreenStack& presentingVC,
                                                       Completion completion)
{
    if (!begin(presentingVC, std::move(completion)))
        return;
    _shouldCrop = true;
    _source = Source::Library;
    const auto picker = std::make_shared<ZKLPhotoPicker>(_services.dialogs);
    picker->selectionBlock = [this](const QImage& image) { didFinishPickingMedia(image); };
    picker->dismissBlock = [this] { didCancel(); };
    _picker = picker;
    presentingVC.presentViewController(picker, ModalPresentationStyle::FullScreen);
}

void ZKLPhotoPickerHelper::takePhotoWithPresentingVC(ScreenStack& presentingVC,
                                                     Completion completion)
{
    if (!begin(presentingVC, std::move(completion)))
        return;
    _source = Source::Camera;
    const auto picker = std::make_shared<CameraPicker>(_services.makeCamera);
    picker->requestAccessBlock = _services.requestCameraAccess;
    picker->didFinishPickingMedia = [this](const QImage& image) { didFinishPickingMedia(image); };
    picker->didCancel = [this] { didCancel(); };
    _picker = picker;
    presentingVC.presentViewController(picker, ModalPresentationStyle::FullScreen);
}

void ZKLPhotoPickerHelper::didFinishPickingMedia(const QImage& image)
{
    if (!image.isNull() && _shouldCrop)
        crop(image);
    else
        goOn(sized(image));
}

void ZKLPhotoPickerHelper::didCancel()
{
    goOn({});
}

void ZKLPhotoPickerHelper::crop(const QImage& image)
{
    const auto tool = TOCropViewController::initWithImage(image);
    tool->didCropToImage = [this](const QImage& cropped, QRect) { goOn(sized(cropped)); };
    if (_source == Source::Camera) // the camera goes with its picture; the library stays
        tool->didFinishCancelled = [this] { goOn({}); };
    else
        tool->popBlock = [this] { _presentingVC->popViewController(); };
    _presentingVC->pushViewController(tool);
}

void ZKLPhotoPickerHelper::goOn(const QImage& image)
{
    // First: the completion may begin the next pick.
    const Completion completion = std::exchange(_photoCompletion, nullptr);
    maxImageDim.reset();
    if (image.isNull())
        _presentingVC->dismissViewController({});
    else if (completion)
        completion(image);
}

QImage ZKLPhotoPickerHelper::sized(const QImage& image) const
{
    return PhotoResize::imageWithin(image, smallestSide,
                                    maxImageDim.value_or(PlatformUtils::maxImageDimForDevice()));
}

} // namespace pelmira
