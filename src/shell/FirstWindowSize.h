#pragma once

#include <QSize>

namespace pelmira {

/// How large the window is when it first shows: 1100 by 760 points, or what fits with its frame
/// into the area of the screen that panels leave free. Wayland doesn't tell of panels, so there is
/// room for one more.
inline QSize firstWindowSize(QSize freeArea)
{
    constexpr QSize preferred(1100, 760);
    constexpr QSize frameAndPanel(8, 80); // the frame's true size is known only once it is shown
    return preferred.boundedTo(freeArea - frameAndPanel);
}

/// The window can't be made smaller than this, nor is it larger than at first.
inline QSize smallestWindowSize(QSize freeArea)
{
    return QSize(320, 320).boundedTo(firstWindowSize(freeArea));
}

} // namespace pelmira
