#include "platform/base/RunLoop.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QObject>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <limits>
#include <map>
#include <mutex>
#include <optional>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace pelmira {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds longestTurn{4};
// Of no length, it would end before the loop has looked for anything else.
constexpr std::chrono::milliseconds rest{1};

/// The job is run outside the lock, and what it holds let go there.
void runFirst(std::deque<Job>& jobs, std::unique_lock<std::mutex>& lock)
{
    Job job = std::move(jobs.front());
    jobs.pop_front();
    lock.unlock();
    job();
    job = nullptr;
    lock.lock();
}

// Plain threads rather than Qt's pool: the hand-over of a job is then visible to thread sanitizers.
class ThreadPool final : public Queue {
public:
    ThreadPool(unsigned threadCount, int niceness) : _niceness(niceness)
    {
        for (unsigned i = 0; i < threadCount; ++i)
            _threads.emplace_back([this] { serve(); });
    }

    ~ThreadPool() override { stop(); }

    /// Lets what runs come to its end. What waits is not begun any more, nor let go.
    void stop()
    {
        {
            const std::lock_guard lock(_mutex);
            _stopping = true;
        }
        _wakeUp.notify_all();
        for (std::thread& thread : std::exchange(_threads, {}))
            thread.join();
    }

    void async(Job job) override
    {
        {
            const std::lock_guard lock(_mutex);
            _ready.push_back(std::move(job));
        }
        _wakeUp.notify_one();
    }

    void asyncAfter(double seconds, Job job) override
    {
        // The main loop keeps the time: workers may all be busy.
        mainQueue().asyncAfter(seconds,
                               [this, job = std::move(job)]() mutable { async(std::move(job)); });
    }

private:
    void serve()
    {
        // On Linux a nice value belongs to the thread, so only this one gives way.
        if (_niceness != 0)
            setpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)), _niceness);
        std::unique_lock lock(_mutex);
        while (!_stopping) {
            if (_ready.empty())
                _wakeUp.wait(lock);
            else
                runFirst(_ready, lock);
        }
    }

    const int _niceness;
    std::mutex _mutex;
    std::condition_variable _wakeUp;
    std::deque<Job> _ready;
    bool _stopping = false;
    std::vector<std::thread> _threads;
};

class MainQueue final : public QObject, public Queue {
    Q_OBJECT

public:
    void async(Job job) override
    {
        {
            const std::lock_guard lock(_mutex);
            _jobs.push_back(std::move(job));
        }
        wakeUp();
    }

    void asyncAfter(double seconds, Job job) override
    {
        const auto wait =
            std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
        {
            const std::lock_guard lock(_mutex);
            _delayed.emplace(now() + wait, std::move(job));
        }
        wakeUp();
    }

    Clock::time_point now() const { return Clock::now() + _passed.load(); }

    void passTime(double seconds)
    {
        _passed = _passed.load() + std::chrono::duration_cast<Clock::duration>(
                                       std::chrono::duration<double>(seconds));
        wakeUp();
    }

    bool drain()
    {
        std::unique_lock lock(_mutex);
        const bool hasRun = runUntil(Clock::time_point::max(), lock);
        waitForNext();
        return hasRun;
    }

    /// Like drain, but leaves the rest to the next turn of the loop once jobs have taken long, and
    /// so does what is queued until then: a press or a frame may be waiting.
    Q_INVOKABLE void serve()
    {
        std::unique_lock lock(_mutex);
        if (_isResting)
            return;
        const Clock::time_point end = now() + longestTurn;
        runUntil(end, lock);
        _isResting = now() > end;
        waitForNext();
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        {
            const std::lock_guard lock(_mutex);
            _isResting = false;
        }
        serve();
    }

private:
    void wakeUp()
    {
        if (QCoreApplication::instance())
            QMetaObject::invokeMethod(this, "serve", Qt::QueuedConnection);
    }

    /// Runs what stands there now; false if that is nothing. A job may serve the queue itself, and
    /// leave fewer than there were.
    bool runUntil(Clock::time_point end, std::unique_lock<std::mutex>& lock)
    {
        const auto due = _delayed.upper_bound(now());
        for (auto entry = _delayed.begin(); entry != due; ++entry)
            _jobs.push_back(std::move(entry->second));
        _delayed.erase(_delayed.begin(), due);
        const std::size_t count = _jobs.size();
        for (std::size_t left = count; left > 0 && !_jobs.empty() && now() <= end; --left)
            runFirst(_jobs, lock);
        return count > 0;
    }

    void waitForNext()
    {
        _timer.stop();
        if ((_delayed.empty() && !_isResting) || !QCoreApplication::instance())
            return;
        const auto wait = _isResting
                              ? Clock::duration(rest)
                              : std::max(_delayed.begin()->first - now(), Clock::duration::zero());
        const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(wait).count();
        _timer.start(static_cast<int>(std::min<decltype(milliseconds)>(
                         milliseconds, std::numeric_limits<int>::max())),
                     Qt::PreciseTimer, this);
    }

    std::mutex _mutex;
    std::deque<Job> _jobs;
    std::multimap<Clock::time_point, Job> _delayed; ///< those due together in the order of asking
    QBasicTimer _timer;
    bool _isResting = false;                ///< the loop has its turn first
    std::atomic<Clock::duration> _passed{}; ///< beyond the steady clock
};

MainQueue& theMainQueue()
{
    // Never destroyed: a job left over at the process's end would otherwise take screens with it
    // that can no longer be taken apart.
    static MainQueue& queue = *new MainQueue;
    return queue;
}

unsigned poolSize()
{
    return std::clamp(std::thread::hardware_concurrency(), 2U, 4U);
}

/// A pool for each priority, made at its first use.
class ThreadPools {
public:
    // They end with the application object: scaling an image then would crash in the toolkit, whose
    // own threads have gone with it.
    ThreadPools()
    {
        qAddPostRoutine([] { shared().stop(); });
        std::atexit([] { shared().stop(); }); // there may be none
    }

    static ThreadPools& shared()
    {
        theMainQueue(); // made first: it belongs to the thread that makes it
        // Never destroyed, as that: nor is what a job left over holds.
        static ThreadPools& pools = *new ThreadPools;
        return pools;
    }

    ThreadPool& ofPriority(QueuePriority priority)
    {
        const std::lock_guard lock(_mutex);
        std::optional<ThreadPool>& pool = _pools[static_cast<std::size_t>(priority)];
        if (pool)
            return *pool;
        return priority == QueuePriority::Background ? pool.emplace(1, 10)
                                                     : pool.emplace(poolSize(), 0);
    }

private:
    void stop()
    {
        const std::lock_guard lock(_mutex);
        for (std::optional<ThreadPool>& pool : _pools)
            if (pool)
                pool->stop();
    }

    std::mutex _mutex;
    std::array<std::optional<ThreadPool>, 3> _pools;
};

} // namespace

Queue& mainQueue()
{
    return theMainQueue();
}

double mainTime()
{
    return std::chrono::duration<double>(theMainQueue().now().time_since_epoch()).count();
}

void passTime(double seconds)
{
    theMainQueue().passTime(seconds);
}

bool drainMainQueue()
{
    return theMainQueue().drain();
}

Queue& globalQueue(QueuePriority priority)
{
    return ThreadPools::shared().ofPriority(priority);
}

struct SerialQueue::State : std::enable_shared_from_this<State> {
    State(std::string name, Queue& where) : label(std::move(name)), target(where) {}

    void add(Job job)
    {
        {
            const std::lock_guard lock(mutex);
            jobs.push_back(std::move(job));
            if (std::exchange(isRunning, true))
                return;
        }
        target.async([self = shared_from_this()] { self->runNext(); });
    }

    void runNext()
    {
        Job job;
        {
            const std::lock_guard lock(mutex);
            job = std::move(jobs.front());
            jobs.pop_front();
        }
        job();
        job = nullptr;
        {
            const std::lock_guard lock(mutex);
            if (jobs.empty()) {
                isRunning = false;
                return;
            }
        }
        target.async([self = shared_from_this()] { self->runNext(); });
    }

    const std::string label;
    Queue& target;
    std::mutex mutex;
    std::deque<Job> jobs;
    bool isRunning = false;
};

SerialQueue::SerialQueue(std::string label, Queue& target)
    : _state(std::make_shared<State>(std::move(label), target))
{
}

SerialQueue::~SerialQueue() = default;

const std::string& SerialQueue::label() const
{
    return _state->label;
}

void SerialQueue::async(Job job)
{
    _state->add(std::move(job));
}

void SerialQueue::asyncAfter(double seconds, Job job)
{
    mainQueue().asyncAfter(
        seconds, [state = _state, job = std::move(job)]() mutable { state->add(std::move(job)); });
}

Timer& Timer::operator=(Timer&& other) noexcept
{
    invalidate();
    _pending = std::move(other._pending);
    return *this;
}

Timer Timer::scheduled(double seconds, Job job)
{
    Timer timer;
    timer._pending = std::make_shared<bool>(true);
    mainQueue().asyncAfter(seconds, [pending = timer._pending, job = std::move(job)] {
        if (std::exchange(*pending, false))
            job();
    });
    return timer;
}

void Timer::invalidate()
{
    if (_pending)
        *_pending = false;
    _pending.reset();
}

} // namespace pelmira

#include "RunLoop.moc"
