#include "refine/RefineEdges.h"

#include "platform/base/ParallelJobs.h"
#include "refine/EdgeRefiner.h"

#include <new>

namespace pelmira {

bool refineEdges(const PixelSpan& pixels, const std::stop_token& stop)
{
    if (pixels.width == 0 || pixels.height == 0)
        return !stop.stop_requested();
    try {
        return EdgeRefiner(pixels, stop, doInParallel).run();
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace pelmira
