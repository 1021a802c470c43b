#include "platform/base/ParallelJobs.h"

#include <algorithm>
#include <atomic>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace pelmira {
namespace {

constexpr unsigned mostWorkers = 8; // memory for scratch is taken for each

} // namespace

unsigned parallelWorkers()
{
    return std::clamp(std::thread::hardware_concurrency(), 1U, mostWorkers);
}

void doInParallel(std::size_t count, const std::function<void(std::size_t, unsigned)>& job)
{
    std::atomic<std::size_t> next = 0;
    const auto work = [&](unsigned worker) {
        for (std::size_t i = next++; i < count; i = next++)
            job(i, worker);
    };
    std::vector<std::jthread> others;
    try {
        const auto wanted = static_cast<unsigned>(std::min<std::size_t>(parallelWorkers(), count));
        for (unsigned worker = 1; worker < wanted; ++worker)
            others.emplace_back(work, worker);
    } catch (const std::system_error&) {
        // Those that stand and this one do it all.
    } catch (const std::bad_alloc&) {
    }
    work(0);
}

} // namespace pelmira
