#include "persistence/resume/MaskWriter.h"

#include "platform/base/RunLoop.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace pelmira {

struct MaskWriter::State {
    /// Writes what waits, unless another thread is at it: that one sees to it.
    void serve(std::unique_lock<std::mutex>& lock)
    {
        if (isWriting)
            return;
        isWriting = true;
        while (const Entry entry = std::exchange(waiting, nullptr)) {
            lock.unlock();
            write(*entry);
            lock.lock();
        }
        isWriting = false;
        isIdle.notify_all();
    }

    void waitUntilIdle(std::unique_lock<std::mutex>& lock)
    {
        isIdle.wait(lock, [this] { return !isWriting; });
    }

    std::function<void(const ZKLUndoEntry&)> write;

    std::mutex mutex;
    std::condition_variable isIdle;
    Entry waiting;
    bool isWriting = false;
};

MaskWriter::MaskWriter(std::function<void(const ZKLUndoEntry&)> write)
    : _state(std::make_shared<State>())
{
    _state->write = std::move(write);
}

MaskWriter::~MaskWriter()
{
    cancel();
}

void MaskWriter::schedule(Entry entry)
{
    {
        const std::lock_guard lock(_state->mutex);
        _state->waiting = std::move(entry);
    }
    globalQueue(QueuePriority::UserInitiated).async([state = _state] {
        std::unique_lock lock(state->mutex);
        state->serve(lock);
    });
}

void MaskWriter::cancel()
{
    std::unique_lock lock(_state->mutex);
    _state->waiting = nullptr;
    _state->waitUntilIdle(lock);
}

// The queue may be busy with longer things: what hasn't begun yet is done here.
void MaskWriter::finish()
{
    std::unique_lock lock(_state->mutex);
    _state->serve(lock);
    _state->waitUntilIdle(lock);
}

bool MaskWriter::isPending() const
{
    const std::lock_guard lock(_state->mutex);
    return _state->isWriting || _state->waiting;
}

} // namespace pelmira
