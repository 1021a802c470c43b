#include "export/RateMoreContainerView.h"

#include "controls/ZKLConfigManager.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double lowScreen = 568.0; // points: the smallest phones need the room for the pictures

void press(const std::function<void()>& block)
{
    if (block)
        block();
}

} // namespace

void RateMoreContainerView::setBlocks(Blocks blocks)
{
    _blocks = std::move(blocks);
    Q_EMIT changed();
}

void RateMoreContainerView::layoutForHeight(double height)
{
    if (height > lowScreen || _wasTooLow)
        return;
    _wasTooLow = true;
    Q_EMIT changed();
}

bool RateMoreContainerView::isHidden() const
{
    return _wasTooLow || (!_blocks.rate && !_blocks.showMoreApps && !_blocks.follow);
}

void RateMoreContainerView::rateUsButtonPressed()
{
    press(_blocks.rate);
}

void RateMoreContainerView::moreAppsButtonPressed()
{
    press(_blocks.showMoreApps);
}

void RateMoreContainerView::followButtonPressed()
{
    press(_blocks.follow);
}

QString RateMoreContainerView::followButtonText()
{
    return ZKLConfigManager::instagramFollowButtonText();
}

} // namespace pelmira
