#include "platform/base/RunLoop.h"

#include <QCoreApplication>
#include <QObject>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace pelmira {
namespace {

using Clock = std::chrono::steady_clock;

Clock::time_point timeAfter(double seconds)
{
    return Clock::now() +
           std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

// Plain threads rather than Qt's pool: the hand-over of a job is then visible to thread sanitizers.
class ThreadPool final : public Queue {
public:
    ThreadPool(unsigned threadCount, int niceness) : _niceness(niceness)
    {
        for (unsigned i = 0; i < threadCount; ++i)
            _threads.emplace_back([this] { serve(); });
    }

    ~ThreadPool() override
    {
        {
            const std::lock_guard lock(_mutex);
            _stopping = true;
        }
        _wakeUp.notify_all();
        for (std::thread& thread : _threads)
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
        {
            const std::lock_guard lock(_mutex);
            _delayed.push_back({timeAfter(seconds), std::move(job)});
        }
        _wakeUp.notify_all();
    }

private:
    struct Delayed {
        Clock::time_point due;
        Job job;
    };

    void serve()
    {
        // On Linux a nice value belongs to the thread, so only this one gives way.
        if (_niceness != 0)
            setpriority(PRIO_PROCESS, static_cast<id_t>(syscall(SYS_gettid)), _niceness);
        std::unique_lock lock(_mutex);
        while (!_stopping) {
            takeWhatIsDue();
            if (!_ready.empty()) {
                Job job = std::move(_ready.front());
                _ready.pop_front();
                lock.unlock();
                job();
                job = nullptr; // what it holds is let go outside the lock
                lock.lock();
            } else if (_delayed.empty()) {
                _wakeUp.wait(lock);
            } else {
                const auto due = nextDue()->due;
                _wakeUp.wait_until(lock, due);
            }
        }
    }

    std::vector<Delayed>::iterator nextDue()
    {
        return std::min_element(_delayed.begin(), _delayed.end(),
                                [](const Delayed& a, const Delayed& b) { return a.due < b.due; });
    }

    void takeWhatIsDue()
    {
        const auto now = Clock::now();
        while (!_delayed.empty()) {
            const auto next = nextDue();
            if (next->due > now)
                return;
            _ready.push_back(std::move(next->job));
            _delayed.erase(next);
        }
    }

    const int _niceness;
    std::mutex _mutex;
    std::condition_variable _wakeUp;
    std::deque<Job> _ready;
    std::vector<Delayed> _delayed;
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
        if (QCoreApplication::instance())
            QMetaObject::invokeMethod(this, "drain", Qt::QueuedConnection);
    }

    void asyncAfter(double seconds, Job job) override
    {
        globalQueue(QueuePriority::UserInitiated).asyncAfter(seconds, [this, job = std::move(job)] {
            async(job);
        });
    }

    Q_INVOKABLE bool drain()
    {
        std::deque<Job> jobs;
        {
            const std::lock_guard lock(_mutex);
            jobs.swap(_jobs);
        }
        for (Job& job : jobs)
            job();
        return !jobs.empty();
    }

private:
    std::mutex _mutex;
    std::deque<Job> _jobs;
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

} // namespace

Queue& mainQueue()
{
    return theMainQueue();
}

bool drainMainQueue()
{
    return theMainQueue().drain();
}

Queue& globalQueue(QueuePriority priority)
{
    theMainQueue(); // made first, so that it outlives the threads that post to it
    static ThreadPool userInitiated(poolSize(), 0);
    if (priority == QueuePriority::UserInitiated)
        return userInitiated;
    if (priority == QueuePriority::Default) {
        static ThreadPool standard(poolSize(), 0);
        return standard;
    }
    static ThreadPool background(1, 10);
    return background;
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
    _state->target.asyncAfter(seconds, [state = _state, job = std::move(job)] { state->add(job); });
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
