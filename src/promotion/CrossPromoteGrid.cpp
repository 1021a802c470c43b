#include "promotion/CrossPromoteGrid.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr int columns = 3;
constexpr double rowGap = 14.0;

// From this height on the card has its full measures, and from the other it stands free.
constexpr double lowScreen = 480.0;
constexpr double cardHeight = 568.0;
constexpr double mainContent = 200.0;
constexpr double lowMainContent = 64.0;

} // namespace

int CrossPromoteGrid::numPages() const
{
    return (entries - 1) / buttonsPerPage + 1;
}

QPointF CrossPromoteGrid::centerForButtonWithIndex(int index) const
{
    const int page = index / buttonsPerPage;
    const int column = index % columns + 1;
    const bool isFirstRow = index % buttonsPerPage < columns;
    const double width = buttonSize.width();
    const double gap = std::ceil((containerWidth - columns * width) * 0.25);
    const double x = page * containerWidth + column * width + column * gap - width * 0.5;
    const double y = isFirstRow ? (scrollHeight - rowGap) * 0.5 - buttonSize.height() * 0.5
                                : (scrollHeight + rowGap) * 0.5 + buttonSize.height() * 0.5;
    return {x, y};
}

QSizeF CrossPromoteGrid::contentSize() const
{
    return {containerWidth * numPages(), scrollHeight};
}

int CrossPromoteGrid::pageAtOffset(double x) const
{
    if (containerWidth <= 0.0)
        return 0;
    const double page = std::floor((x - containerWidth * 0.5) / containerWidth) + 1.0;
    return static_cast<int>(std::clamp(page, 0.0, numPages() - 1.0));
}

CrossPromoteLayout CrossPromoteLayout::forScreen(double height)
{
    return {height > lowScreen ? std::min(cardHeight, height) : height,
            height > lowScreen ? mainContent : lowMainContent, height > cardHeight};
}

} // namespace pelmira
