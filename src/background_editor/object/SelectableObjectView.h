#pragma once

#include "background_editor/object/HandleView.h"
#include "platform/touch/GestureRecognizers.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QSizeF>

#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// An object that is moved, scaled, turned and flipped on a canvas. Its state is its geometry:
/// the size of its bounds, its centre in the superview, and the angle by which it is turned.
/// Lengths are points, y down; angles are radians, clockwise on the screen. Main thread only.
class SelectableObjectView : public QObject {
    Q_OBJECT
    Q_PROPERTY(QSizeF bounds READ bounds NOTIFY geometryChanged)
    Q_PROPERTY(QPointF center READ center NOTIFY geometryChanged)
    Q_PROPERTY(double rotationDegrees READ rotationDegrees NOTIFY geometryChanged)
    Q_PROPERTY(bool animates READ animates NOTIFY animatesChanged)
    Q_PROPERTY(bool contentViewHFlip READ contentViewHFlip NOTIFY flipChanged)
    Q_PROPERTY(double contentAlpha READ contentAlpha NOTIFY contentViewChanged)
    Q_PROPERTY(double borderWidth READ borderWidth NOTIFY selectionChanged)
    Q_PROPERTY(bool selected READ isSelected NOTIFY selectionChanged)
    Q_PROPERTY(QList<QObject*> handles READ handles CONSTANT)

public:
    /// What of the object takes a touch.
    enum class Part {
        None,
        Object,
        DeleteButton,
        FlipButton,
        EditButton,
        ResizeButton,
        ResizeSideHandle,
        ResizeBottomHandle,
    };

    /// What the object shows.
    struct ContentView {
        QImage image;
        double alpha = 1.0;
    };

    static constexpr double handleButtonSide = 30.0;

    SelectableObjectView();
    ~SelectableObjectView() override;

    double minDim = 10.0;           ///< the least length of the shorter side
    double originalAspectRatio = 0; ///< width over height of the content; 0 means unknown
    double aspectRatio = 0;         ///< what a drag of the resize button holds
    bool alwaysSelected = false;
    bool selected = false; ///< `updateHandleVisibility` makes a change of it seen
    bool hideDeleteButton = false;
    bool hideFlipButton = false;
    bool hideResizeSideHandle = false;
    bool showResizeBottomHandle = true;
    /// Moving, pinching and turning ask for a layout too.
    bool needsLayoutForPositionAndRotationChange = false;

    std::function<void(SelectableObjectView&)> deleteButtonCallback;
    std::function<void(SelectableObjectView&, QPointF)> selectionCallback;
    std::function<void(SelectableObjectView&)> editButtonCallback;

    QSizeF bounds() const { return _bounds; }
    void setBounds(QSizeF bounds) { setGeometry(bounds, _center, _rotation); }
    QPointF center() const { return _center; }
    void setCenter(QPointF center) { setGeometry(_bounds, center, _rotation); }
    double rotation() const { return _rotation; }
    void setRotation(double rotation) { setGeometry(_bounds, _center, rotation); }
    double rotationDegrees() const;
    /// The last change plays over 0.3 seconds on the screen; here it has happened.
    bool animates() const { return _animates; }

    const ContentView* contentView() const { return _contentView ? &*_contentView : nullptr; }
    virtual void setContentView(std::optional<ContentView> contentView);
    bool contentViewHFlip() const { return _contentViewHFlip; }
    double contentAlpha() const { return _contentView ? _contentView->alpha : 1.0; }
    double borderWidth() const { return _borderWidth; }
    bool isSelected() const { return selected; }
    QList<QObject*> handles();

    /// The point in the object's coordinates, whose origin is its upper left corner.
    QPointF pointFromSuperview(QPointF point) const;
    QPointF pointToSuperview(QPointF point) const;
    /// In the object's coordinates. A selected object takes every touch that reaches it.
    Part hitTest(QPointF point) const;

    void updateHandleVisibility();
    /// Brings the shorter side to the least length, at the ratio that was last held.
    void enforceMinSize() { enforceMinSize(false); }

    /// In the object's coordinates.
    void handleTapWithRecognizer(QPointF location);
    void handleTapOnCloseWithRecognizer();
    void handleTapOnFlipWithRecognizer();
    void handleTapOnEditWithRecognizer();
    /// The touches of the recognisers are in the superview's coordinates. What a handler has taken
    /// from a recogniser it sets back.
    void handlePanWithRecognizer(PanGestureRecognizer& recognizer);
    void handleRotationWithRecognizer(RotationGestureRecognizer& recognizer);
    void handlePinchWithRecognizer(PinchGestureRecognizer& recognizer);
    /// The corner follows the finger, and the centre stays.
    void handleResizePanWithRecognizer(PanGestureRecognizer& recognizer);
    /// Both edges move, and the centre stays.
    void handleSideHandlePanWithRecognizer(PanGestureRecognizer& recognizer);
    void handleBottomHandlePanWithRecognizer(PanGestureRecognizer& recognizer);

Q_SIGNALS:
    void animatesChanged(); ///< before the change that it speaks of
    void geometryChanged();
    void flipChanged();
    void contentViewChanged();
    void selectionChanged();
    void layoutNeeded();

protected:
    /// A button at the upper right corner, for a kind of object that can be edited.
    void setEditButton(std::unique_ptr<HandleView> editButton);
    virtual void layoutSubviews();

private:
    static std::unique_ptr<HandleView> makeHandleButton(const char* imageName, const QColor& color);

    void setGeometry(QSizeF bounds, QPointF center, double rotation, bool animated = false);
    void enforceMinSize(bool animated);
    void resizeTo(QPointF corner);
    void askForLayoutAfterMove();

    QSizeF _bounds;
    QPointF _center;
    double _rotation = 0.0;
    bool _animates = false;
    std::optional<ContentView> _contentView;
    bool _contentViewHFlip = false;
    double _borderWidth = 0.0;
    std::unique_ptr<HandleView> _resizeSideHandle;
    std::unique_ptr<HandleView> _resizeBottomHandle;
    std::unique_ptr<HandleView> _deleteButton;
    std::unique_ptr<HandleView> _flipButton;
    std::unique_ptr<HandleView> _editButton;
    std::unique_ptr<HandleView> _resizeButton;
};

} // namespace pelmira
