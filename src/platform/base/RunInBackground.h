#pragma once

#include "platform/base/RunLoop.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace pelmira {

/// Runs `work` off the main thread, and then `then` with its result on the main thread. Both are
/// run in any case, so `then` asks itself whether it is still wanted: what asked may have gone, or
/// have asked for something else. Whatever `then` holds ends its life on the main thread.
template <class Work, class Then>
void runInBackground(Work work, Then then, Queue& queue = globalQueue(QueuePriority::UserInitiated))
{
    // Shared and then handed over, so that a copy of the job doesn't hold it here any longer.
    auto task = std::make_shared<std::pair<Work, Then>>(std::move(work), std::move(then));
    queue.async([task = std::move(task)]() mutable {
        if constexpr (std::is_void_v<std::invoke_result_t<Work&>>) {
            task->first();
            mainQueue().async([task = std::move(task)] { task->second(); });
        } else {
            mainQueue().async([result = task->first(), task = std::move(task)]() mutable {
                task->second(std::move(result));
            });
        }
    });
}

} // namespace pelmira
