#include "background_editor/screen/EditBackgroundLayout.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr double topBarHeight = 56.0;
constexpr double lowTopBarHeight = 48.0;
constexpr double lowWindow = 480.0;
constexpr double tabbarHeight = 80.0;
constexpr double leastPanelHeight = 176.0;
constexpr double mostPanelHeight = 220.0;
constexpr double mostPanelHeightBeside = 360.0;
constexpr double leastColumnWidth = 280.0;
constexpr double mostColumnWidth = 380.0;

} // namespace

EditBackgroundLayout::EditBackgroundLayout(QSizeF view) : isWide(view.width() > view.height())
{
    const double w = view.width();
    const double h = view.height();
    topBar = {0.0, 0.0, w, h < lowWindow ? lowTopBarHeight : topBarHeight};
    const double below = std::max(0.0, h - topBar.height());
    if (isWide) {
        const double column = std::min(w, std::clamp(w * 0.34, leastColumnWidth, mostColumnWidth));
        const double panel = std::clamp(below - tabbarHeight, 0.0, mostPanelHeightBeside);
        workArea = {0.0, topBar.bottom(), w - column, below};
        tabbar = {w - column, h - tabbarHeight, column, tabbarHeight};
        controlContainer = {w - column, tabbar.top() - panel, column, panel};
    } else {
        const double panel = std::clamp(h * 0.32, leastPanelHeight, mostPanelHeight);
        tabbar = {0.0, h - tabbarHeight, w, tabbarHeight};
        controlContainer = {0.0, tabbar.top() - panel, w, panel};
        workArea = {0.0, topBar.bottom(), w, std::max(0.0, below - tabbarHeight - panel)};
    }
}

} // namespace pelmira
