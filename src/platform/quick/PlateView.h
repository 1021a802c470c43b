#pragma once

#include "platform/quick/ImageView.h"

#include <QColor>

namespace pelmira {

/// A rounded rectangle of one colour, painted into an image. A `Rectangle` has a shader of its own,
/// which a screen of pictures and text doesn't have to wait for.
class PlateView : public ImageView {
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    using ImageView::ImageView;

    QColor color() const { return _color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

private:
    QColor _color;
};

} // namespace pelmira
