#include "crop/TOCropViewController.h"

#include "controls/ScreenScale.h"
#include "crop/CropColors.h"
#include "crop/CropPreview.h"
#include "crop/CroppedImage.h"
#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr double navBarHeight = 44.0;
constexpr double toolbarHeight = 80.0;
constexpr double doneDelay = 0.03;
constexpr double keyStride = 10.0;
constexpr double keyZoom = 1.1;

} // namespace

std::shared_ptr<TOCropViewController> TOCropViewController::initWithImage(const QImage& image)
{
    return image.isNull() ? nullptr : std::make_shared<TOCropViewController>(image, mainTime);
}

TOCropViewController::TOCropViewController(const QImage& image, Clock clock)
    : _image(image), _clock(std::move(clock)), _cropView(image.size()), _toolbar(image.size())
{
    _toolbar.aspectRatioButtonTapped = [this](int preset) { aspectRatioButtonTapped(preset); };
    _toolbar.positionButtonsInScrollview(toolbarHeight);
    _levels = {roughCropPreview(image)};
    connect(&_transition, &TOCropViewControllerTransitioning::changed, this, [this] {
        const bool wasSeenThrough = std::exchange(_isSeenThrough, showsScreenBelow());
        if (wasSeenThrough != _isSeenThrough)
            Q_EMIT showsScreenBelowChanged();
    });
}

TOCropViewController::~TOCropViewController() = default;

void TOCropViewController::aspectRatioButtonTapped(int preset)
{
    if (!takesInput())
        return;
    setAspectRatioPreset(preset, true);
    setAspectRatioLockEnabled(preset != cropPresetFree);
}

void TOCropViewController::setAspectRatioPreset(int preset, bool animated)
{
    _aspectRatioPreset = preset;
    _gestures.touchesCancelled(_clock());
    _cropView.setAspectRatio(ratioOfCropPreset(preset, _image.size()), animated, _clock());
    publish();
}

void TOCropViewController::setAspectRatioLockEnabled(bool enabled)
{
    _cropView.setAspectRatioLockEnabled(enabled);
}

void TOCropViewController::presentAnimatedFromParentViewController(
    ScreenStack& parent, const QImage& fromImage, const QRectF& fromFrame, const QRect& cropRect,
    const std::function<void()>& setup, std::function<void()> completion)
{
    if (!cropRect.isEmpty())
        _cropView.setImageCropFrame(cropRect);
    _startTransition = [this, fromImage, fromFrame, completion = std::move(completion)] {
        using Tool = TOCropViewControllerTransitioning::Tool;
        _transition.start(Tool::FadesIn, fromImage.isNull() ? _levels[shownLevel()] : fromImage,
                          fromFrame, fromImage.isNull() ? imageFrame() : cropBoxFrame(), _clock(),
                          completion);
    };
    if (setup)
        setup();
    if (!popBlock)
        popBlock = [&parent] { parent.dismissViewController({}); };
    // The growing picture is all the motion that there is.
    parent.presentViewController(shared_from_this(), ModalPresentationStyle::FullScreen, false);
}

void TOCropViewController::dismissAnimatedFromParentViewController(
    ScreenStack& parent, const QImage& withCroppedImage, const QRectF& toFrame,
    const std::function<void()>& setup, std::function<void()> completion)
{
    if (std::exchange(_isLeaving, true))
        return;
    _gestures.touchesCancelled(_clock());
    _transition.finish(); // or the end of one that still grows would undo the setup
    if (prepareForTransitionHandler)
        prepareForTransitionHandler();
    if (setup)
        setup();
    const QImage shown = withCroppedImage.isNull()
                             ? croppedImageWithFrame(_image, _cropView.imageCropFrame())
                             : withCroppedImage;
    using Tool = TOCropViewControllerTransitioning::Tool;
    _transition.start(
        Tool::FadesOut, roughCropPreview(shown), cropBoxFrame(), toFrame, _clock(),
        [this, &parent, completion = std::move(completion)] { leave(parent, completion); });
    publish();
}

void TOCropViewController::leave(ScreenStack& parent, std::function<void()> completion)
{
    if (parent.topScreen() == this) {
        parent.dismissViewController(std::move(completion), false);
        return;
    }
    // Something came over it while the picture shrank, and stays.
    parent.removeBelowTop([this](const Screen& screen) { return &screen == this; });
    if (completion)
        completion();
}

void TOCropViewController::doneButtonTapped()
{
    if (!takesInput())
        return;
    _gestures.touchesCancelled(_clock());
    _cropView.settle();
    publish();
    const QRect frame = _cropView.imageCropFrame();
    if (didCropImageToRect)
        didCropImageToRect(frame);
    if (didCropImageToUnitRect) {
        const QSizeF size = _image.size();
        didCropImageToUnitRect({frame.x() / size.width(), frame.y() / size.height(),
                                frame.width() / size.width(), frame.height() / size.height()});
    }
    if (!didCropToImage)
        return;
    _isCutting = true;
    dropLargerLevels();
    runInBackground(
        [image = _image, frame] {
            return frame == image.rect() ? image : croppedImageWithFrame(image, frame);
        },
        [weak = weak_from_this(), frame](const QImage& result) {
            if (const auto self = weak.lock())
                self->give(result, frame);
        });
}

void TOCropViewController::give(const QImage& result, const QRect& frame)
{
    if (result.isNull()) {
        _isCutting = false;
        makeLevels();
        logLine("No memory for the cropped image");
        _alert.showMessage(localized("cropscreen.error.memory"));
        return;
    }
    // The last frame of an animation goes first; what the owner does may take a while.
    _doneTimer = Timer::scheduled(doneDelay, [this, result, frame] {
        _isCutting = false;
        const auto callback = didCropToImage; // which may let go of the tool
        if (callback)
            callback(result, frame);
    });
}

void TOCropViewController::cancelButtonTapped()
{
    if (!takesInput())
        return;
    _isLeaving = true;
    _transition.finish(); // what was hidden for a picture that still grows is seen again
    const auto pop = popBlock;
    if (const auto callback = didFinishCancelled)
        callback();
    if (pop)
        pop();
}

void TOCropViewController::touchBegan(int identifier, QPointF location)
{
    if (!takesInput() || _transition.isRunning())
        return;
    _gestures.touchBegan(identifier, location, _clock());
    publish();
}

void TOCropViewController::touchMoved(int identifier, QPointF location)
{
    _gestures.touchMoved(identifier, location, _clock());
    publish();
}

void TOCropViewController::touchEnded(int identifier)
{
    _gestures.touchEnded(identifier, _clock());
    publish();
}

void TOCropViewController::touchesCancelled()
{
    _gestures.touchesCancelled(_clock());
    publish();
}

void TOCropViewController::touchesBegan(const TouchEvent& withEvent)
{
    for (const Touch& touch : withEvent.allTouches)
        touchBegan(touch.identifier, touch.location);
}

void TOCropViewController::touchesMoved(const TouchEvent& withEvent)
{
    for (const Touch& touch : withEvent.allTouches)
        touchMoved(touch.identifier, touch.location);
}

void TOCropViewController::touchesEnded(const TouchEvent& withEvent)
{
    for (const Touch& touch : withEvent.allTouches)
        if (touch.hasEnded)
            touchEnded(touch.identifier);
}

void TOCropViewController::viewStepped(const ViewStep& step)
{
    if (step.scale != 1.0)
        zoomBy(step.scale, step.about);
    if (!step.translation.isNull())
        panBy(step.translation);
}

void TOCropViewController::zoomBy(double factor, QPointF about)
{
    if (!takesInput())
        return;
    _cropView.zoomBy(factor, about, _clock());
    publish();
}

void TOCropViewController::zoomSteps(int steps)
{
    zoomBy(std::pow(keyZoom, steps), cropBoxFrame().center());
}

void TOCropViewController::step(int x, int y, bool strides)
{
    panBy(QPointF(-x, -y) * (strides ? keyStride : 1.0));
}

void TOCropViewController::panBy(QPointF translation)
{
    if (!takesInput())
        return;
    _cropView.panBy(translation, _clock());
    publish();
}

QRectF TOCropViewController::onPixels(QRectF frame, double pixelsPerPoint)
{
    const auto snapped = [pixelsPerPoint](QPointF corner) {
        return QPointF(std::round(corner.x() * pixelsPerPoint),
                       std::round(corner.y() * pixelsPerPoint)) /
               pixelsPerPoint;
    };
    return {snapped(frame.topLeft()), snapped(frame.bottomRight())};
}

int TOCropViewController::cursorForPoint(QPointF point) const
{
    switch (_cropView.cropEdgeForPoint(point)) {
    case CropEdge::TopLeft:
    case CropEdge::BottomRight:
        return Qt::SizeFDiagCursor;
    case CropEdge::TopRight:
    case CropEdge::BottomLeft:
        return Qt::SizeBDiagCursor;
    case CropEdge::Left:
    case CropEdge::Right:
        return Qt::SizeHorCursor;
    case CropEdge::Top:
    case CropEdge::Bottom:
        return Qt::SizeVerCursor;
    case CropEdge::None:
        break;
    }
    return Qt::OpenHandCursor;
}

void TOCropViewController::displayLinkFired()
{
    advance();
}

void TOCropViewController::advance()
{
    const auto keep = weak_from_this().lock();
    const double now = _clock();
    _cropView.advance(now);
    _transition.advance(now);
    publish();
}

void TOCropViewController::publish()
{
    if (shownLevel() > _largestShown) {
        _largestShown = shownLevel();
        Q_EMIT levelsChanged();
    }
    Q_EMIT changed();
    _resetTimer.invalidate();
    if (const auto time = _cropView.resetTime(); time && !_cropView.isMoving())
        _resetTimer = Timer::scheduled(std::max(0.0, *time - _clock()), [this] { advance(); });
}

QRectF TOCropViewController::navBarFrame() const
{
    return {0.0, _safeAreaInsets.top(), viewSize().width(), navBarHeight};
}

QRectF TOCropViewController::frameForToolBar() const
{
    const double bottom = _safeAreaInsets.bottom();
    return {0.0, viewSize().height() - toolbarHeight - bottom, viewSize().width(),
            bottom + toolbarHeight};
}

QRectF TOCropViewController::frameForCropView() const
{
    const double top = navBarFrame().bottom();
    return {0.0, top, viewSize().width(), std::max(0.0, frameForToolBar().top() - top)};
}

void TOCropViewController::setSafeAreaInsets(const QMarginsF& insets)
{
    _safeAreaInsets = insets;
    viewDidLayoutSubviews();
}

QColor TOCropViewController::backgroundColor() const
{
    return CropColors::backgroundColor();
}

QColor TOCropViewController::panelColor() const
{
    return CropColors::panelColor();
}

QUrl TOCropViewController::layoutFile() const
{
    return layoutUrl("CropScreen");
}

void TOCropViewController::viewDidLoad()
{
    makeLevels();
}

void TOCropViewController::makeLevels()
{
    if (_levels.front().size() == _image.size())
        return; // small enough for itself
    runInBackground([image = _image] { return cropPreviewLevels(image); },
                    [weak = weak_from_this()](const QList<QImage>& levels) {
                        const auto self = weak.lock();
                        if (!self || levels.isEmpty() || self->_isCutting)
                            return;
                        self->_levels = levels;
                        self->_largestShown = self->shownLevel();
                        Q_EMIT self->levelsChanged();
                        Q_EMIT self->changed();
                    });
}

// They measure as much as the photo, which what follows needs memory for.
void TOCropViewController::dropLargerLevels()
{
    const int shown = shownLevel();
    const QImage image = _levels[shown];
    std::fill(_levels.begin() + shown, _levels.end(), image);
    Q_EMIT levelsChanged();
}

int TOCropViewController::shownLevel() const
{
    return cropPreviewLevel(_levels, imageFrame().width() * screenScale());
}

void TOCropViewController::viewWillAppear(bool animated)
{
    _isLeaving = false;
    _inTransition = animated;
    if (_aspectRatioPreset != cropPresetOriginal) {
        setAspectRatioPreset(_aspectRatioPreset, false);
        _cropView.moveCroppedContentToCenterAnimated(false, _clock());
    }
    _transition.showTool();
    if (const auto start = std::exchange(_startTransition, nullptr)) {
        if (prepareForTransitionHandler)
            prepareForTransitionHandler();
        start();
    }
    publish();
}

void TOCropViewController::viewDidAppear(bool)
{
    _inTransition = false;
    publish();
}

void TOCropViewController::viewDidLayoutSubviews()
{
    _gestures.touchesCancelled(_clock());
    _cropView.setBounds(frameForCropView());
    if (_transition.isRunning() && !_isLeaving)
        _transition.setEnd(cropBoxFrame());
    Q_EMIT layoutChanged();
    publish();
}

} // namespace pelmira
