#include "platform/quick/DimmingView.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QTouchEvent>
#include <QWheelEvent>

namespace pelmira {
namespace {

const QColor dimColor(0, 0, 0, 153);

} // namespace

DimmingView::DimmingView(bool dims, QQuickItem* parent) : QQuickItem(parent), _dims(dims)
{
    setFlag(ItemIsFocusScope);
    setFlag(ItemHasContents, dims);
    setAcceptTouchEvents(dims);
    setAcceptHoverEvents(dims);
    setAcceptedMouseButtons(dims ? Qt::AllButtons : Qt::NoButton);
}

QSGNode* DimmingView::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    auto* node = static_cast<QSGRectangleNode*>(old);
    if (!node && _dims)
        node = window()->createRectangleNode();
    if (node) {
        node->setColor(dimColor);
        node->setRect(boundingRect());
    }
    return node;
}

void DimmingView::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    Q_EMIT pressedBeside();
}

void DimmingView::wheelEvent(QWheelEvent* event)
{
    event->setAccepted(_dims);
}

void DimmingView::touchEvent(QTouchEvent* event)
{
    event->accept();
    if (event->type() == QEvent::TouchBegin)
        Q_EMIT pressedBeside();
}

} // namespace pelmira
