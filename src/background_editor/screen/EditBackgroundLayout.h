#pragma once

#include <QRectF>
#include <QSizeF>

namespace pelmira {

/// Where the parts of the background editor lie, in points. In a tall window the tabs stand at its
/// lower edge and the panels over them; in a wide one both stand in a column at the right, where a
/// hand or a pointer is, and the canvas keeps the rest. Panels never cover the canvas.
struct EditBackgroundLayout {
    explicit EditBackgroundLayout(QSizeF view = {});

    bool isWide = false;
    QRectF topBar;
    QRectF workArea;
    QRectF controlContainer; ///< in which the panels slide
    QRectF tabbar;
};

} // namespace pelmira
