#pragma once

#include <QObject>
#include <QPointF>

namespace pelmira {

/// How the keys move the mark on a picture that something is picked from. Places are shares of the
/// picture's width and height.
class PickerMark : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Where an arrow leads from there, by a hundredth or by strides of a tenth, perhaps beyond the
    /// picture. Not a number for any other key.
    Q_INVOKABLE static QPointF afterKey(QPointF place, int key, bool strides);
};

} // namespace pelmira
