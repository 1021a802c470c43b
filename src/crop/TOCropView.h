#pragma once

#include "crop/CropBox.h"
#include "crop/CropMotion.h"

#include <QMarginsF>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <optional>
#include <variant>

namespace pelmira {

/// The geometry of the crop surface: a crop box, and an image that is panned and zoomed under it.
/// It draws nothing and has no clock. Lengths are points of the surface, y down; times are seconds
/// on any clock that only runs forward.
///
/// The box never leaves the content bounds. The image may be pulled short of the box by a finger
/// and then gives way like rubber; left alone it always covers the box.
class TOCropView {
public:
    /// The image's size in pixels; not empty.
    explicit TOCropView(QSizeF imageSize);

    // Layout

    QRectF bounds() const { return _bounds; }
    /// Takes another size and keeps what is chosen of the image.
    void setBounds(const QRectF& bounds);
    void setCropRegionInsets(const QMarginsF& insets) { _cropRegionInsets = insets; }
    /// Where the box may be.
    QRectF contentBounds() const;
    /// The whole image, or as much of it as the aspect ratio allows, in the middle.
    void layoutInitialImage();

    QRectF cropBoxFrame() const { return _pose.box; }
    QRectF imageFrame() const { return _pose.image; }
    /// Points a pixel of the image.
    double zoomScale() const { return _pixelScale * zoom(_pose); }
    double minimumZoomScale() const { return _pixelScale * leastZoom(_pose.box); }
    double maximumZoomScale() const { return _pixelScale * mostZoom(); }

    /// What is chosen, in whole pixels of the image and never beyond it.
    QRect imageCropFrame() const;
    /// Chooses that part of the image.
    void setImageCropFrame(const QRect& frame);

    // Ratio

    /// Shapes the box; a size of nothing stands for the image's own. The part that the user chose
    /// last decides what is shown, so trying one ratio after another loses nothing.
    void setAspectRatio(QSizeF aspectRatio, bool animated, double now);
    QSizeF aspectRatio() const { return _aspectRatio; }
    bool isAspectRatioLockEnabled() const { return _aspectRatioLockEnabled; }
    void setAspectRatioLockEnabled(bool enabled) { _aspectRatioLockEnabled = enabled; }

    // Editing

    bool isEditing() const { return _editing; }
    /// Leaving brings what is chosen to the middle.
    void setEditing(bool editing, bool animated, double now);
    void moveCroppedContentToCenterAnimated(bool animated, double now);
    /// Editing ends by itself 0.8 seconds after the last change has come to rest.
    void startResetTimer(double now);
    void cancelResetTimer() { _resetTime.reset(); }
    std::optional<double> resetTime() const { return _resetTime; }

    CropEdge cropEdgeForPoint(QPointF point) const
    {
        return pelmira::cropEdgeForPoint(_pose.box, point);
    }
    /// A finger takes hold of the box where it is nearest; false where it isn't near.
    bool beginCropBoxDrag(QPointF point, double now);
    void updateCropBoxFrameWithGesturePoint(QPointF point);
    void endCropBoxDrag(double now);

    /// Fingers take hold of the image at their middle. It may be called again while they hold it,
    /// when one lands or lifts.
    void beginScroll(QPointF middle, double now);
    /// The fingers' middle now, and their distance as a multiple of that at the beginning.
    void scroll(QPointF middle, double scale);
    /// In points a second.
    void endScroll(QPointF velocity, double now);

    /// One step of a wheel or a key.
    void zoomBy(double factor, QPointF about, double now);
    void panBy(QPointF translation, double now);

    // Motion

    /// Brings everything to where it is at the time.
    void advance(double now);
    /// Something moves by itself and wants to be shown.
    bool isMoving() const { return !std::holds_alternative<std::monostate>(_motion); }
    /// Ends any motion, each at its end.
    void settle();

private:
    struct Pose {
        QRectF box;
        QRectF image;
    };
    struct Spring {
        Pose from;
        Pose to;
        double start;
        double initialVelocity;

        double end() const { return start + cropSpringSeconds; }
        Pose pose(double now) const;
    };
    struct ImageGlide {
        Glide x;
        Glide y;
        double start;

        double end() const { return start + std::max(x.duration(), y.duration()); }
        QPointF imageTopLeft(double now) const;
    };
    struct BoxDrag {
        CropEdge edge;
        QPointF point;
        Pose origin;
    };
    struct Scroll {
        QPointF middle;
        QPointF anchor; ///< what the fingers hold, as a share of the image
        double zoom;    ///< as pulled, not as shown
        double most;
    };

    double zoom(const Pose& pose) const { return pose.image.width() / _fittedSize.width(); }
    double ratioOnSurface(QSizeF aspectRatio) const;
    double leastZoom(const QRectF& box) const;
    double mostZoom() const;
    QRectF shareOf(const Pose& pose) const;
    Pose poseShowing(const QRectF& share) const;
    Pose restPose() const;
    QRectF imageZoomed(double newZoom, QPointF about) const;
    void moveTo(const Pose& pose, bool animated, double initialVelocity, double now);
    void startEditing(double now);
    void finishEdit(double now);

    const QSizeF _imageSize;
    QRectF _bounds;
    QMarginsF _cropRegionInsets;
    QSizeF _fittedSize = {1.0, 1.0}; ///< of the whole image in the content bounds
    double _pixelScale = 1.0;        ///< points a pixel at that size
    Pose _pose;
    QRectF _chosen = {0.0, 0.0, 1.0, 1.0}; ///< by the user, as a share of the image
    bool _isTouched = false;               ///< no longer the initial layout

    QSizeF _aspectRatio;
    bool _aspectRatioLockEnabled = false;
    bool _editing = false;
    std::optional<double> _resetTime;
    /// What moves by itself: nothing, box and image together, or the image alone.
    std::variant<std::monostate, Spring, ImageGlide> _motion;
    std::optional<BoxDrag> _drag;
    std::optional<Scroll> _scroll;
};

} // namespace pelmira
