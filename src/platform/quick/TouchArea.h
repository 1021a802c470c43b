#pragma once

#include "platform/touch/Touches.h"

#include <QPointer>
#include <QQuickItem>

#include <optional>

namespace pelmira {

/// A rectangle of a screen that takes touches, in points from its top left. They go to its
/// responder; the left mouse button is one finger. A touchpad's gestures, the wheel (with Ctrl it
/// zooms, with Alt it turns) and a drag with the middle button or the space bar step the view.
class TouchArea : public QQuickItem {
    Q_OBJECT
    /// Who is told: an object that is a `TouchResponder`; any other is told nothing.
    Q_PROPERTY(QObject* screen READ screen WRITE setScreen NOTIFY screenChanged)
    /// Whether the keyboard has been led here by a key, so that it should be seen.
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged)
    /// A mouse's wheel zooms, and turns with Shift, where there is nothing to scroll.
    Q_PROPERTY(bool wheelZooms MEMBER _wheelZooms)
    /// Whether the tab key leads here.
    Q_PROPERTY(bool takesTab READ activeFocusOnTab WRITE setActiveFocusOnTab)

public:
    explicit TouchArea(QQuickItem* parent = nullptr);

    QObject* screen() const { return _screen; }
    void setScreen(QObject* screen);
    /// For a responder that is no `QObject`. Not owned; it outlives the area or is set back to
    /// nothing.
    void setResponder(TouchResponder* responder);
    bool visualFocus() const { return _visualFocus; }

Q_SIGNALS:
    void screenChanged();
    void visualFocusChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TouchResponder* responder() const;
    QPointF lastLocationOf(const Touch& touch) const;
    void takeMoves(const QTouchEvent& event);
    void step(const ViewStep& step);
    void setVisualFocus(bool isSeen);
    void sendMouse(QMouseEvent* event, TouchPhase phase);
    void send(const TouchEvent& event, TouchPhase phase);
    void cancel(TouchEvent& event);

    QPointer<QObject> _screen;
    TouchResponder* _responder = nullptr;
    // What is down now. A palm that lands is no end of the stroke that the pen is drawing.
    TouchEvent _fingers;
    TouchEvent _pointer; ///< the mouse or the pen
    bool _visualFocus = false;
    bool _wheelZooms = false;
    bool _spaceIsHeld = false;
    Qt::MouseButton _button = Qt::NoButton; ///< that was pressed first of those that are down
    std::optional<QPointF> _dragged;        ///< where a drag of the view has got to
};

} // namespace pelmira
