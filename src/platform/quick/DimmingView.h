#pragma once

#include <QQuickItem>

namespace pelmira {

/// What a screen's layout lies in. Under a sheet it dims what is below and keeps touches from it;
/// a press beside the sheet is told.
class DimmingView final : public QQuickItem {
    Q_OBJECT

public:
    explicit DimmingView(bool dims, QQuickItem* parent = nullptr);

Q_SIGNALS:
    void pressedBeside();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void touchEvent(QTouchEvent* event) override;

private:
    const bool _dims;
};

} // namespace pelmira
