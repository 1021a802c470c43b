#pragma once

#include <functional>
#include <memory>
#include <string>

namespace pelmira {

using Job = std::function<void()>;

/// Where a job runs. Jobs are taken in the order in which they were queued.
class Queue {
public:
    Queue() = default;
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    virtual ~Queue() = default;

    /// Queues the job and returns at once. Safe from any thread.
    virtual void async(Job job) = 0;
    /// Queues the job once the given time has passed, by the main loop's clock.
    virtual void asyncAfter(double seconds, Job job) = 0;
};

enum class QueuePriority { Background, Default, UserInitiated };

/// The main thread's queue. It is served by the Qt event loop of the application object.
Queue& mainQueue();

/// Seconds by the clock that all delays go by. It never goes back.
double mainTime();

/// For tests: sets that clock forward, so that whatever waits for a time within is due at once.
void passTime(double seconds);

/// Runs what stands in the main queue at the moment of the call; true if there was anything.
/// For programs without an event loop, such as engine tests and benchmarks.
bool drainMainQueue();

/// A process-wide pool of threads; jobs of one pool run side by side. It ends with the application
/// object: a job that runs is waited for, one that still waits is never begun.
Queue& globalQueue(QueuePriority priority);

/// Runs one job at a time on its target queue. Destroying it drops no job.
class SerialQueue final : public Queue {
public:
    SerialQueue(std::string label, Queue& target);
    ~SerialQueue() override;

    const std::string& label() const;
    void async(Job job) override;
    void asyncAfter(double seconds, Job job) override;

private:
    struct State;
    std::shared_ptr<State> _state;
};

/// A single-shot timer on the main queue. Invalidated by destruction.
class Timer {
public:
    Timer() = default;
    Timer(Timer&&) = default;
    Timer& operator=(Timer&& other) noexcept;
    ~Timer() { invalidate(); }

    static Timer scheduled(double seconds, Job job);
    void invalidate();
    bool isValid() const { return _pending && *_pending; }

private:
    std::shared_ptr<bool> _pending;
};

} // namespace pelmira
