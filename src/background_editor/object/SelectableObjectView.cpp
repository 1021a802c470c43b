#include "background_editor/object/SelectableObjectView.h"

#include "controls/StyleUtil.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace pelmira {
namespace {

constexpr double rightAngle = std::numbers::pi / 2;
constexpr double snapAngle = 0.05;
constexpr double leastHandleLength = 10.0;
constexpr double snapLength = 10.0;
// The drawing is smaller than what takes the finger.
constexpr QSizeF edgeHandleSize(44.0, 44.0);
// No screen shows more; beyond it the arithmetic would in the end run over.
constexpr double longestSide = 1e6;

double snapped(double angle)
{
    const double over = std::abs(std::fmod(angle, rightAngle));
    return std::min(over, rightAngle - over) < snapAngle
               ? std::round(angle / rightAngle) * rightAngle
               : angle;
}

double snappedLength(double length, double undeformed)
{
    return std::abs(length - undeformed) < snapLength ? undeformed : length;
}

QPointF turned(QPointF p, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {p.x() * c - p.y() * s, p.x() * s + p.y() * c};
}

QPointF middleOf(QSizeF size)
{
    return {size.width() * 0.5, size.height() * 0.5};
}

std::unique_ptr<HandleView> makeEdgeHandle(const char* imageName)
{
    return std::make_unique<HandleView>(QLatin1String(imageName), Qt::transparent, edgeHandleSize);
}

bool isOver(GestureState state)
{
    return state == GestureState::Ended || state == GestureState::Cancelled;
}

} // namespace

SelectableObjectView::SelectableObjectView()
    : _resizeSideHandle(makeEdgeHandle("zkl-resize-width")),
      _resizeBottomHandle(makeEdgeHandle("zkl-resize-height")),
      _deleteButton(makeHandleButton("zkl-delete-icon", StyleUtil::deleteRed())),
      _flipButton(makeHandleButton("zkl-sticker-flip", StyleUtil::buttonBlue())),
      _resizeButton(makeHandleButton("zkl-resize-icon", StyleUtil::buttonBlue()))
{
}

SelectableObjectView::~SelectableObjectView() = default;

std::unique_ptr<HandleView> SelectableObjectView::makeHandleButton(const char* imageName,
                                                                   const QColor& color)
{
    return std::make_unique<HandleView>(QLatin1String(imageName), color,
                                        QSizeF(handleButtonSide, handleButtonSide));
}

void SelectableObjectView::setEditButton(std::unique_ptr<HandleView> editButton)
{
    _editButton = std::move(editButton);
    layoutSubviews();
}

QList<QObject*> SelectableObjectView::handles()
{
    QList<QObject*> all{_resizeSideHandle.get(), _resizeBottomHandle.get(), _deleteButton.get(),
                        _flipButton.get(), _resizeButton.get()};
    if (_editButton)
        all.insert(all.size() - 1, _editButton.get());
    return all;
}

void SelectableObjectView::setContentView(std::optional<ContentView> contentView)
{
    _contentView = std::move(contentView);
    if (_contentView)
        enforceMinSize();
    Q_EMIT contentViewChanged();
}

double SelectableObjectView::rotationDegrees() const
{
    return qRadiansToDegrees(_rotation);
}

void SelectableObjectView::setGeometry(QSizeF bounds, QPointF center, double rotation,
                                       bool animated)
{
    _bounds = bounds.boundedTo(QSizeF(longestSide, longestSide));
    _center = center;
    _rotation = std::remainder(rotation, 2 * std::numbers::pi);
    if (std::exchange(_animates, animated) != animated)
        Q_EMIT animatesChanged();
    layoutSubviews();
    Q_EMIT geometryChanged();
}

void SelectableObjectView::layoutSubviews()
{
    const double w = _bounds.width();
    const double h = _bounds.height();
    _resizeSideHandle->setCenter({0.0, h * 0.5});
    _resizeBottomHandle->setCenter({w * 0.5, h});
    _deleteButton->setCenter({0.0, 0.0});
    _flipButton->setCenter({0.0, h});
    if (_editButton)
        _editButton->setCenter({w, 0.0});
    _resizeButton->setCenter({w, h});
}

QPointF SelectableObjectView::pointFromSuperview(QPointF point) const
{
    return turned(point - _center, -_rotation) + middleOf(_bounds);
}

QPointF SelectableObjectView::pointToSuperview(QPointF point) const
{
    return turned(point - middleOf(_bounds), _rotation) + _center;
}

SelectableObjectView::Part SelectableObjectView::hitTest(QPointF point) const
{
    if (_resizeButton->takesTouchAt(point))
        return Part::ResizeButton;
    if (_editButton && _editButton->takesTouchAt(point))
        return Part::EditButton;
    if (!hideFlipButton && _flipButton->takesTouchAt(point))
        return Part::FlipButton;
    if (_deleteButton->takesTouchAt(point))
        return Part::DeleteButton;
    if (_resizeSideHandle->takesTouchAt(point))
        return Part::ResizeSideHandle;
    if (showResizeBottomHandle && _resizeBottomHandle->takesTouchAt(point))
        return Part::ResizeBottomHandle;
    if (selected || QRectF(QPointF(), _bounds).contains(point))
        return Part::Object;
    return Part::None;
}

void SelectableObjectView::updateHandleVisibility()
{
    selected = selected || alwaysSelected;
    if (_contentView)
        _borderWidth = selected ? 1.0 : 0.0;
    _deleteButton->setHidden(!selected || hideDeleteButton);
    _flipButton->setHidden(!selected || hideFlipButton);
    if (_editButton)
        _editButton->setHidden(!selected);
    _resizeButton->setHidden(!selected);
    _resizeSideHandle->setHidden(!selected || hideResizeSideHandle);
    _resizeBottomHandle->setHidden(selected ? false : showResizeBottomHandle);
    Q_EMIT selectionChanged();
    Q_EMIT layoutNeeded();
}

void SelectableObjectView::handleTapWithRecognizer(QPointF location)
{
    selected = !selected;
    updateHandleVisibility();
    if (selectionCallback)
        selectionCallback(*this, location);
}

void SelectableObjectView::handleTapOnCloseWithRecognizer()
{
    if (deleteButtonCallback)
        deleteButtonCallback(*this);
}

void SelectableObjectView::handleTapOnEditWithRecognizer()
{
    if (editButtonCallback)
        editButtonCallback(*this);
}

void SelectableObjectView::handleTapOnFlipWithRecognizer()
{
    _contentViewHFlip = !_contentViewHFlip;
    Q_EMIT flipChanged();
}

void SelectableObjectView::handlePanWithRecognizer(PanGestureRecognizer& recognizer)
{
    setCenter(_center + std::exchange(recognizer.translation, {}));
    askForLayoutAfterMove();
}

void SelectableObjectView::handleRotationWithRecognizer(RotationGestureRecognizer& recognizer)
{
    setRotation(_rotation + std::exchange(recognizer.rotation, 0.0));
    askForLayoutAfterMove();
}

void SelectableObjectView::handlePinchWithRecognizer(PinchGestureRecognizer& recognizer)
{
    setBounds(_bounds * std::exchange(recognizer.scale, 1.0));
    enforceMinSize();
    askForLayoutAfterMove();
}

void SelectableObjectView::handleResizePanWithRecognizer(PanGestureRecognizer& recognizer)
{
    if (recognizer.state == GestureState::Began) {
        enforceMinSize();
        aspectRatio = _bounds.width() / _bounds.height();
    } else if (recognizer.state == GestureState::Changed) {
        resizeTo(recognizer.locationOfTouch(0));
    } else if (isOver(recognizer.state)) {
        enforceMinSize(true);
    }
    recognizer.translation = {};
    askForLayoutAfterMove();
}

void SelectableObjectView::resizeTo(QPointF corner)
{
    // The centre stays, so the finger's distance from it is half of the diagonal.
    const QPointF v = corner - _center;
    const double diagonal = 2.0 * std::hypot(v.x(), v.y());
    const double k = 1.0 / aspectRatio;
    const double width = diagonal / std::sqrt(1.0 + k * k);
    const double height = k * width;
    const double angle = std::atan2(v.y(), v.x()) - std::atan2(height * 0.5, width * 0.5);
    setGeometry({width, height}, _center, snapped(angle));
}

void SelectableObjectView::handleSideHandlePanWithRecognizer(PanGestureRecognizer& recognizer)
{
    const double x = pointFromSuperview(recognizer.locationOfTouch(0)).x();
    double width = std::max(_bounds.width() - 2.0 * x, leastHandleLength);
    if (originalAspectRatio != 0)
        width = snappedLength(width, _bounds.height() * originalAspectRatio);
    setBounds({width, _bounds.height()});
    recognizer.translation = {};
}

void SelectableObjectView::handleBottomHandlePanWithRecognizer(PanGestureRecognizer& recognizer)
{
    const double y = pointFromSuperview(recognizer.locationOfTouch(0)).y();
    const double h = _bounds.height();
    double height = std::max(h + 2.0 * (y - h), leastHandleLength);
    if (originalAspectRatio != 0)
        height = snappedLength(height, _bounds.width() / originalAspectRatio);
    setBounds({_bounds.width(), height});
    recognizer.translation = {};
}

void SelectableObjectView::enforceMinSize(bool animated)
{
    double ratio = aspectRatio != 0 ? aspectRatio : originalAspectRatio;
    if (ratio == 0)
        ratio = 1.0;
    if (_bounds.height() < _bounds.width()) {
        if (_bounds.height() < minDim)
            setGeometry({ratio * minDim, minDim}, _center, _rotation, animated);
    } else if (_bounds.width() < minDim) {
        setGeometry({minDim, minDim / ratio}, _center, _rotation, animated);
    }
}

void SelectableObjectView::askForLayoutAfterMove()
{
    if (needsLayoutForPositionAndRotationChange)
        Q_EMIT layoutNeeded();
}

} // namespace pelmira
