#pragma once

#include <QPointF>
#include <QSizeF>

namespace pelmira {

/// Where the buttons of the grid stand: six to a page, in two rows of three. Lengths in points.
struct CrossPromoteGrid {
    static constexpr int buttonsPerPage = 6;
    static constexpr QSizeF buttonSize{95.0, 95.0};
    static constexpr QSizeF iconSize{60.0, 60.0};

    int entries = 0;
    double containerWidth = 0.0;
    double scrollHeight = 0.0;

    int numPages() const;
    QPointF centerForButtonWithIndex(int index) const;
    QSizeF contentSize() const;
    /// The page that is shown, counted from 0, once the grid is scrolled by an offset.
    int pageAtOffset(double x) const;
};

/// How the screen of a height divides: the card, and the part of it above the grid.
struct CrossPromoteLayout {
    double containerHeight = 0.0;
    double mainContentHeight = 0.0;
    bool hasBackgroundView = false; ///< something stands behind the card, whose corners are round

    static CrossPromoteLayout forScreen(double height);
};

} // namespace pelmira
