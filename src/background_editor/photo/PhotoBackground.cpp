#include "background_editor/photo/PhotoBackground.h"

#include "platform/base/RunInBackground.h"
#include "platform/pixels/ImageResize.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr double largestSide = 2048.0; // as large as what is saved in the end
constexpr double smallestSide = 400.0;
constexpr double blurredSide = 1024.0;

QImage fitted(const QImage& image, double side)
{
    return resizedImageWithContentMode(image, QSizeF(side, side));
}

} // namespace

PhotoBackground::PhotoBackground() : _self(std::make_shared<PhotoBackground*>(this))
{
}

PhotoBackground::~PhotoBackground()
{
    dropHelper();
}

QImage PhotoBackground::limitedToSize(const QImage& image)
{
    const double longest = std::max(image.width(), image.height());
    if (longest > largestSide)
        return fitted(image, largestSide);
    if (longest < smallestSide)
        return fitted(image, smallestSide);
    return image;
}

double PhotoBackground::radiusBase(QSize size)
{
    return std::clamp(std::min(size.width(), size.height()) / 20.0, 5.0, 50.0);
}

void PhotoBackground::setBackgroundPhoto(const QImage& photo)
{
    _bgImageOriginal = photo;
    _bgImageCropped = photo;
    _bgImageCropRect = {};
    setBackgroundImage(photo);
    _blurAmount = 0.0F;
    _awaitedAmount.reset();
    dropHelper();
}

void PhotoBackground::finishCrop(const QImage& image, const QRect& cropRect)
{
    if (image.isNull())
        return;
    _bgImageCropped = image;
    _bgImageCropRect = cropRect;
    setBackgroundImage(image);
    _awaitedAmount.reset();
    dropHelper(); // it blurs a copy of the crop before, also one that is shown unblurred
    if (_blurAmount > 0.0F)
        setBlurAmount(_blurAmount);
}

void PhotoBackground::setBlurAmount(float blurAmount)
{
    if (_bgImageCropped.isNull())
        return;
    _blurAmount = blurAmount;
    if (blurAmount == 0.0F) {
        // What comes of a blur under way is not wanted any more, so its helper is replaced.
        const QImage reduced = _blurHelper ? _blurHelper->originalImage() : QImage();
        dropHelper();
        if (_bgImage.cacheKey() != _bgImageCropped.cacheKey())
            setBackgroundImage(_bgImageCropped);
        if (!reduced.isNull())
            makeHelper(reduced);
    }
    if (_blurHelper)
        blur(blurAmount);
    else if (_awaitedAmount)
        *_awaitedAmount = blurAmount;
    else
        makeHelperOnReducedCrop();
}

void PhotoBackground::makeHelperOnReducedCrop()
{
    _awaitedAmount = std::make_shared<float>(_blurAmount);
    runInBackground(
        [crop = _bgImageCropped] { return fitted(crop, blurredSide); },
        [weakSelf = std::weak_ptr(_self), amount = _awaitedAmount](const QImage& reduced) {
            const auto self = weakSelf.lock();
            if (!self || (*self)->_awaitedAmount != amount)
                return; // of a photo or crop before
            (*self)->_awaitedAmount.reset();
            if (reduced.isNull()) // no memory for it: the next amount tries again
                return;
            (*self)->makeHelper(reduced);
            (*self)->blur(*amount);
        });
}

void PhotoBackground::makeHelper(const QImage& reduced)
{
    _blurHelper = std::make_shared<PatternBlurHelper>(reduced, false);
}

void PhotoBackground::blur(float amount)
{
    const double base = radiusBase(_blurHelper->originalImage().size());
    const double radius = std::ceil(base * static_cast<double>(amount));
    _blurHelper->doFilterWithBlur(
        radius, 0.0, 0.0,
        [weakSelf = std::weak_ptr(_self)](const QImage& image, double, double, double) {
            // Without memory for a blur, what is shown stays.
            if (const auto self = weakSelf.lock(); self && !image.isNull())
                (*self)->setBackgroundImage(image);
        });
}

void PhotoBackground::removePhoto()
{
    _bgImageOriginal = {};
    _bgImageCropped = {};
    setBackgroundImage({});
    _blurAmount = 0.0F;
}

void PhotoBackground::setBackgroundImage(const QImage& image)
{
    _bgImage = image;
    if (backgroundImageChangedBlock)
        backgroundImageChangedBlock(image);
}

void PhotoBackground::dropHelper()
{
    if (_blurHelper)
        _blurHelper->cancel();
    _blurHelper.reset();
}

} // namespace pelmira
