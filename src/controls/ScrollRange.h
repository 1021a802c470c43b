#pragma once

#include <QObject>
#include <QPointF>

namespace pelmira {

/// How far a row or a page can be scrolled that may be longer than what shows it. Offsets and
/// lengths are points along it; what is given back lies within the content.
class ScrollRange : public QObject {
    Q_OBJECT
    Q_PROPERTY(double content MEMBER content NOTIFY changed)
    Q_PROPERTY(double view MEMBER view NOTIFY changed)
    Q_PROPERTY(bool fits READ fits NOTIFY changed)

public:
    using QObject::QObject;

    double content = 0.0;
    double view = 0.0;

    bool fits() const { return content <= view; }
    Q_INVOKABLE double within(double offset) const;
    /// Where a part is wholly in sight with something of what is beside it, by the shortest way; of
    /// a part that is too long, its beginning.
    Q_INVOKABLE double revealing(double offset, double start, double length) const;
    /// After a turn of a wheel or a touchpad, in eighths of a degree. A turn sideways counts as
    /// such, any other one goes along as well.
    Q_INVOKABLE double turned(double offset, QPointF angle) const;
    /// Where a key leads that reads on or back: an arrow some lines, a page key or the space bar
    /// most of a view, Home and End all the way. Not a number for any other key.
    Q_INVOKABLE double afterKey(double offset, int key) const;

Q_SIGNALS:
    void changed();
};

} // namespace pelmira
