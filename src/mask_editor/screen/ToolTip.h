#pragma once

#include "platform/base/RunLoop.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace pelmira {

/// The short text over the bottom bar that tells what a button has just done. The layout file
/// shows it, measures the text and fades to `alpha` over `fadeMilliseconds`.
class ToolTip final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(double alpha READ alpha NOTIFY changed)
    Q_PROPERTY(int fadeMilliseconds READ fadeMilliseconds NOTIFY changed)
    Q_PROPERTY(QSizeF fittedSize MEMBER _fittedSize WRITE setFittedSize)
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)

public:
    using QObject::QObject;

    /// Shows the text for a second, counted from now, in place of any earlier one.
    void showToolTipWithTitle(const QString& title);
    void hideToolTip();

    QString text() const { return _text; }
    double alpha() const { return _alpha; }
    int fadeMilliseconds() const { return _alpha > 0 ? 100 : 300; }
    /// In points, centred over the bottom bar.
    QRectF frame() const;

    /// The size of the text alone, in points.
    void setFittedSize(QSizeF size);
    void setSurroundings(double viewWidth, double bottomBarTop);

Q_SIGNALS:
    void changed();
    void frameChanged();

private:
    QString _text;
    double _alpha = 0.0;
    QSizeF _fittedSize;
    double _viewWidth = 0.0;
    double _bottomBarTop = 0.0;
    Timer _toolTipTimer;
};

} // namespace pelmira
