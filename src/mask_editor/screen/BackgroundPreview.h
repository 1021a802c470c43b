#pragma once

#include "mask_editor/drawing/BackgroundMode.h"

#include <QColor>
#include <QObject>

namespace pelmira {

/// The button that steps the background, dressed as a preview of the next one.
class BackgroundPreview final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showsImage READ showsImage NOTIFY changed)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed)
    Q_PROPERTY(QColor borderColor READ borderColor NOTIFY changed)
    Q_PROPERTY(double alpha READ alpha NOTIFY changed)
    Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)

public:
    using QObject::QObject;

    static BackgroundMode modeAfter(BackgroundMode mode)
    {
        return static_cast<BackgroundMode>((mode + 1) % 3);
    }

    void showNextAfter(BackgroundMode mode)
    {
        _shown = modeAfter(mode);
        Q_EMIT changed();
    }
    void setAlpha(double alpha)
    {
        _alpha = alpha;
        Q_EMIT changed();
    }

    bool showsImage() const { return _shown == BackgroundChecker; }
    QColor backgroundColor() const
    {
        return _shown == BackgroundWhite   ? Qt::white
               : _shown == BackgroundBlack ? Qt::black
                                           : Qt::transparent;
    }
    QColor borderColor() const { return _shown == BackgroundBlack ? Qt::white : Qt::black; }
    double alpha() const { return _alpha; }
    /// What can't be seen can't be pressed, nor can its key.
    bool isEnabled() const { return _alpha > 0.0; }

Q_SIGNALS:
    void changed();

private:
    BackgroundMode _shown = BackgroundBlack;
    double _alpha = 1.0;
};

} // namespace pelmira
