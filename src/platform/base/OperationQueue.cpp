#include "platform/base/OperationQueue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace pelmira {

struct OperationQueue::State : std::enable_shared_from_this<State> {
    explicit State(Queue& where) : target(where) {}

    /// One operation; the queue is asked again for the next, so that others get their turn.
    void runNext()
    {
        Job operation;
        {
            const std::lock_guard lock(mutex);
            if (waiting.empty()) { // all were dropped, or this was the last
                isServed = false;
                return;
            }
            operation = std::move(waiting.front());
            waiting.pop_front();
            isRunning = true;
        }
        operation();
        operation = nullptr; // what it holds is let go before the next one starts
        {
            const std::lock_guard lock(mutex);
            isRunning = false;
            finished.notify_all();
        }
        serve();
    }

    void serve()
    {
        target.async([self = shared_from_this()] { self->runNext(); });
    }

    Queue& target;
    std::mutex mutex;
    std::condition_variable finished;
    std::deque<Job> waiting;
    bool isServed = false; ///< the target has been asked for a turn
    bool isRunning = false;
};

OperationQueue::OperationQueue(Queue& target) : _state(std::make_shared<State>(target))
{
}

void OperationQueue::addOperation(Job operation)
{
    {
        const std::lock_guard lock(_state->mutex);
        _state->waiting.push_back(std::move(operation));
        if (std::exchange(_state->isServed, true))
            return;
    }
    _state->serve();
}

void OperationQueue::cancelAllOperations()
{
    std::deque<Job> dropped; // let go without the lock: what they hold may come back here
    const std::lock_guard lock(_state->mutex);
    dropped.swap(_state->waiting);
    _state->finished.notify_all(); // the last may have been among them
}

void OperationQueue::waitUntilAllOperationsAreFinished()
{
    std::unique_lock lock(_state->mutex);
    _state->finished.wait(lock, [this] { return _state->waiting.empty() && !_state->isRunning; });
}

} // namespace pelmira
