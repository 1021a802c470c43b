#pragma once

#include "controls/Alert.h"
#include "crop/CropGestures.h"
#include "crop/TOCropToolbar.h"
#include "crop/TOCropView.h"
#include "crop/TOCropViewControllerTransitioning.h"
#include "platform/base/RunLoop.h"
#include "platform/screen/Screen.h"
#include "platform/screen/ScreenStack.h"
#include "platform/touch/Touches.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QMarginsF>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QVariant>

#include <functional>
#include <memory>

namespace pelmira {

/// The crop tool's screen. The user moves the image under a box and gets what the box holds. The
/// tool doesn't close itself when it is done: its owner does.
class TOCropViewController final : public Screen,
                                   public TouchResponder,
                                   public std::enable_shared_from_this<TOCropViewController> {
    Q_OBJECT
    Q_PROPERTY(pelmira::TOCropToolbar* toolbar READ toolbar CONSTANT)
    Q_PROPERTY(
        pelmira::TOCropViewControllerTransitioning* transition READ transitionController CONSTANT)
    Q_PROPERTY(QVariantList levels READ levelList NOTIFY levelsChanged)
    Q_PROPERTY(int shownLevel READ shownLevel NOTIFY changed)
    Q_PROPERTY(QRectF navBarFrame READ navBarFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF toolbarFrame READ frameForToolBar NOTIFY layoutChanged)
    Q_PROPERTY(QRectF cropViewFrame READ frameForCropView NOTIFY layoutChanged)
    Q_PROPERTY(QRectF cropBoxFrame READ cropBoxFrame NOTIFY changed)
    Q_PROPERTY(QRectF imageFrame READ imageFrame NOTIFY changed)
    Q_PROPERTY(bool editing READ isEditing NOTIFY changed)
    Q_PROPERTY(bool moving READ isMoving NOTIFY changed)
    Q_PROPERTY(bool inTransition READ isInTransition NOTIFY changed)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor CONSTANT)
    Q_PROPERTY(QColor panelColor READ panelColor CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)

public:
    using Clock = std::function<double()>; ///< seconds, only ever forward

    /// A tool on the image, upright; nothing for an empty image.
    static std::shared_ptr<TOCropViewController> initWithImage(const QImage& image);
    TOCropViewController(const QImage& image, Clock clock);
    ~TOCropViewController() override;

    // For the owner. Each callback is optional.

    /// What was chosen, in pixels of the image, and the same as a share of the image.
    std::function<void(QRect)> didCropImageToRect;
    std::function<void(QRectF)> didCropImageToUnitRect;
    /// The result; the very image that was given, if all of it was chosen.
    std::function<void(QImage, QRect)> didCropToImage;
    std::function<void()> didFinishCancelled;
    /// Leaves this screen for the one below. Called by the tool on cancel only.
    std::function<void()> popBlock;
    std::function<void()> prepareForTransitionHandler;

    int aspectRatioPreset() const { return _aspectRatioPreset; }
    void setAspectRatioPreset(int preset, bool animated);
    void setAspectRatioLockEnabled(bool enabled);
    bool resetAspectRatioEnabled = false;
    const QImage& image() const { return _image; }
    TOCropView& cropView() { return _cropView; }
    const TOCropView& cropView() const { return _cropView; }

    /// Presents the tool over the parent's top screen, with `fromImage` growing out of `fromFrame`
    /// (points of the window) while the tool comes into view. The box starts around `cropRect`
    /// (pixels of the image) unless that is empty. The parent outlives the tool.
    void presentAnimatedFromParentViewController(ScreenStack& parent, const QImage& fromImage,
                                                 const QRectF& fromFrame, const QRect& cropRect,
                                                 const std::function<void()>& setup,
                                                 std::function<void()> completion);
    /// Shrinks the cropped image, or without one what the surface shows, into `toFrame` while the
    /// tool goes out of view, then takes the tool from the parent. The setup runs as it starts, the
    /// completion when the screen below is back.
    void dismissAnimatedFromParentViewController(ScreenStack& parent,
                                                 const QImage& withCroppedImage,
                                                 const QRectF& toFrame,
                                                 const std::function<void()>& setup,
                                                 std::function<void()> completion);
    void dismissAnimatedFromParentViewController(ScreenStack& parent, const QRectF& toFrame,
                                                 const std::function<void()>& setup,
                                                 std::function<void()> completion)
    {
        dismissAnimatedFromParentViewController(parent, {}, toFrame, setup, std::move(completion));
    }

    // For the layout file. Points of the window.

    Q_INVOKABLE void doneButtonTapped();
    Q_INVOKABLE void cancelButtonTapped();
    void touchBegan(int identifier, QPointF location);
    void touchMoved(int identifier, QPointF location);
    void touchEnded(int identifier);
    void touchesCancelled();
    void zoomBy(double factor, QPointF about);
    /// Keys: about the box's centre, by a tenth each, or, below zero, back again.
    Q_INVOKABLE void zoomSteps(int steps);
    /// Moves what is chosen over the image, by points or by strides of ten.
    Q_INVOKABLE void step(int x, int y, bool strides);
    /// The frame with its edges on the screen's pixels, so that its lines are sharp.
    Q_INVOKABLE static QRectF onPixels(QRectF frame, double pixelsPerPoint);
    /// A Qt::CursorShape.
    Q_INVOKABLE int cursorForPoint(QPointF point) const;
    /// Once a frame while `moving`.
    Q_INVOKABLE void displayLinkFired();

    TOCropToolbar* toolbar() { return &_toolbar; }
    TOCropViewControllerTransitioning* transitionController() { return &_transition; }
    /// The image in several sizes, the smallest first, and which of them is shown.
    const QList<QImage>& levels() const { return _levels; }
    /// For the layout, which keeps what it once got: none that is larger than it has shown.
    QVariantList levelList() const
    {
        return {_levels.begin(), _levels.begin() + _largestShown + 1};
    }
    int shownLevel() const;
    QRectF navBarFrame() const;
    QRectF frameForToolBar() const;
    QRectF frameForCropView() const;
    void setSafeAreaInsets(const QMarginsF& insets);
    QRectF cropBoxFrame() const { return _cropView.cropBoxFrame(); }
    QRectF imageFrame() const { return _cropView.imageFrame(); }
    bool isEditing() const { return _cropView.isEditing(); }
    bool isMoving() const { return _cropView.isMoving() || _transition.isRunning(); }
    bool isInTransition() const { return _inTransition; }
    QColor backgroundColor() const;
    QColor panelColor() const;
    /// Messages.
    Alert* alert() { return &_alert; }

    void touchesBegan(const TouchEvent& withEvent) override;
    void touchesMoved(const TouchEvent& withEvent) override;
    void touchesEnded(const TouchEvent& withEvent) override;
    void touchesCancelled(const TouchEvent&) override { touchesCancelled(); }
    /// A wheel or a touchpad: the image takes part, but doesn't turn.
    void viewStepped(const ViewStep& step) override;

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewDidLayoutSubviews() override;
    bool showsScreenBelow() const override { return _transition.toolAlpha() < 1.0; }

Q_SIGNALS:
    void changed();
    void layoutChanged();
    void levelsChanged();

private:
    void aspectRatioButtonTapped(int preset);
    void panBy(QPointF translation);
    void publish();
    void advance();
    void makeLevels();
    void dropLargerLevels();
    /// Not once it is decided how the tool is left.
    bool takesInput() const { return !_isLeaving && !_isCutting; }
    void give(const QImage& result, const QRect& frame);
    void leave(ScreenStack& parent, std::function<void()> completion);

    const QImage _image;
    const Clock _clock;
    QList<QImage> _levels;
    int _largestShown = 0;
    TOCropView _cropView;
    CropGestures _gestures{_cropView};
    TOCropToolbar _toolbar;
    TOCropViewControllerTransitioning _transition;
    Alert _alert;
    QMarginsF _safeAreaInsets;
    int _aspectRatioPreset = cropPresetOriginal;
    bool _inTransition = false;
    bool _isLeaving = false;
    bool _isCutting = false; ///< from Done on, until the owner has the result
    bool _isSeenThrough = false;
    Timer _doneTimer;
    Timer _resetTimer;
    std::function<void()> _startTransition; ///< once the layout is known
};

} // namespace pelmira
