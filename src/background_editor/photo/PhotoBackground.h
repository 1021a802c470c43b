#pragma once

#include "background_editor/filters/PatternBlurHelper.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <memory>

namespace pelmira {

/// A photo as the background of a composition, in three stages: as picked, cropped, and as it is
/// shown and drawn, which is the crop or a blurred copy of it. Main thread.
class PhotoBackground {
public:
    PhotoBackground();
    ~PhotoBackground();

    /// The picture at a size for a background, its longer side from 400 to 2048 pixels; the same
    /// image if it is. Null without memory. Safe from any thread; takes a moment for a large photo.
    static QImage limitedToSize(const QImage& image);

    /// Another picture is to be shown, or none. The canvas takes its shape.
    std::function<void(const QImage&)> backgroundImageChangedBlock;

    const QImage& bgImageOriginal() const { return _bgImageOriginal; }
    const QImage& bgImageCropped() const { return _bgImageCropped; }
    /// In pixels of the original; empty for no crop.
    const QRect& bgImageCropRect() const { return _bgImageCropRect; }
    const QImage& bgImage() const { return _bgImage; }
    float blurAmount() const { return _blurAmount; }
    /// Null also while the copy that it blurs is being made.
    const std::shared_ptr<PatternBlurHelper>& blurHelper() const { return _blurHelper; }

    /// A photo of a size for a background. It has neither crop nor blur.
    void setBackgroundPhoto(const QImage& photo);
    /// A crop of the original that the crop tool gives. Without an image nothing happens.
    void finishCrop(const QImage& image, const QRect& cropRect);
    /// From 0 to 1: the share of the widest blur. Does nothing without a photo. With 0 the crop is
    /// shown at once, and after it the reduced copy on which the blur is made.
    void setBlurAmount(float blurAmount);
    /// No photo: a colour is the background now. A blur under way is still shown when it is done.
    void removePhoto();

    /// In pixels of the picture that is blurred, for the greatest amount.
    static double radiusBase(QSize size);

private:
    void setBackgroundImage(const QImage& image);
    void makeHelperOnReducedCrop();
    void makeHelper(const QImage& reduced);
    void blur(float amount);
    void dropHelper();

    QImage _bgImageOriginal;
    QImage _bgImageCropped;
    QRect _bgImageCropRect;
    QImage _bgImage;
    float _blurAmount = 0.0F;
    std::shared_ptr<PatternBlurHelper> _blurHelper;
    /// What the helper is to do first, while the reduced copy for it is being made.
    std::shared_ptr<float> _awaitedAmount;
    /// For blurs that come back when this has gone.
    const std::shared_ptr<PhotoBackground*> _self;
};

} // namespace pelmira
