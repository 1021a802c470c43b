#pragma once

#include <cstddef>
#include <functional>

namespace pelmira {

/// Calls the job with each number below the count, on this thread and on others beside it, as many
/// as the machine has cores. Returns when all are done. Jobs must not throw and may come in any
/// order; a job sees a `worker` number that no other running one has, below parallelWorkers().
/// With fewer threads than wanted (the system may refuse them) it only takes longer.
void doInParallel(std::size_t count, const std::function<void(std::size_t, unsigned worker)>& job);

/// At least 1.
unsigned parallelWorkers();

} // namespace pelmira
