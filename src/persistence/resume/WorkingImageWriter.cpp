#include "persistence/resume/WorkingImageWriter.h"

#include "platform/base/RunLoop.h"
#include "platform/encode/JpegEncoder.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double bestQuality = 1.0;

} // namespace

struct WorkingImageWriter::State {
    using Number = std::uint64_t;

    /// To be called with the mutex held.
    void clearOnce()
    {
        if (std::exchange(mustClear, false))
            clear();
    }

    /// False if the photo of that number is no longer the newest.
    bool begin(Number number)
    {
        const std::lock_guard lock(mutex);
        if (number != newest || !isPending)
            return false;
        clearOnce();
        return true;
    }

    void take(QByteArray bytes, const QImage& image, Number number)
    {
        const std::lock_guard lock(mutex);
        if (number != newest)
            return;
        if (bytes.isEmpty())
            unencoded = image;
        encoded = std::move(bytes);
        isEncoded = true;
        hasEncoded.notify_all();
    }

    void writeEncoded(std::unique_lock<std::mutex>& lock)
    {
        QByteArray bytes = std::exchange(encoded, {});
        isPending = false;
        const Number number = newest;
        lock.unlock();
        if (write(bytes))
            return;
        lock.lock();
        if (number == newest)
            unwritten = std::move(bytes);
    }

    std::function<void()> clear;
    std::function<bool(const QByteArray&)> write;

    std::mutex mutex;
    std::condition_variable hasEncoded;
    Number newest = 0;
    bool isPending = false; ///< the newest is not on disk yet
    bool isEncoded = false;
    bool mustClear = false;
    QByteArray encoded;
    QByteArray unwritten; ///< there was no room for it
    QImage unencoded;     ///< there was no memory for it
};

WorkingImageWriter::WorkingImageWriter(std::function<void()> clear,
                                       std::function<bool(const QByteArray&)> write)
    : _state(std::make_shared<State>())
{
    _state->clear = std::move(clear);
    _state->write = std::move(write);
}

WorkingImageWriter::~WorkingImageWriter()
{
    cancel();
}

void WorkingImageWriter::schedule(QImage image)
{
    State::Number number = 0;
    {
        const std::lock_guard lock(_state->mutex);
        number = ++_state->newest;
        _state->isPending = true;
        _state->isEncoded = false;
        _state->mustClear = true;
        _state->encoded.clear();
        _state->unwritten.clear();
        _state->unencoded = {};
    }
    const std::weak_ptr<State> weak = _state;
    globalQueue(QueuePriority::UserInitiated).async([weak, number, image = std::move(image)] {
        const std::shared_ptr<State> state = weak.lock();
        if (!state || !state->begin(number))
            return;
        state->take(jpegRepresentation(image, bestQuality), image, number);
        mainQueue().async([weak, number] {
            const std::shared_ptr<State> alive = weak.lock();
            if (!alive)
                return;
            std::unique_lock lock(alive->mutex);
            if (number == alive->newest && alive->isPending)
                alive->writeEncoded(lock);
        });
    });
}

void WorkingImageWriter::cancel()
{
    const std::lock_guard lock(_state->mutex);
    ++_state->newest;
    _state->isPending = false;
    _state->mustClear = false;
    _state->encoded.clear();
    _state->unwritten.clear();
    _state->unencoded = {};
}

void WorkingImageWriter::clearIfStillDue()
{
    const std::lock_guard lock(_state->mutex);
    _state->clearOnce();
}

void WorkingImageWriter::finish()
{
    std::unique_lock lock(_state->mutex);
    if (!_state->isPending)
        return;
    _state->hasEncoded.wait(lock, [this] { return _state->isEncoded; });
    _state->writeEncoded(lock);
}

void WorkingImageWriter::retry()
{
    std::unique_lock lock(_state->mutex);
    if (_state->isPending)
        return;
    if (!_state->unencoded.isNull())
        _state->unwritten = jpegRepresentation(_state->unencoded, bestQuality);
    if (_state->unwritten.isEmpty())
        return;
    _state->unencoded = {};
    _state->encoded = std::exchange(_state->unwritten, {});
    _state->writeEncoded(lock);
}

bool WorkingImageWriter::hasUnwritten() const
{
    const std::lock_guard lock(_state->mutex);
    return !_state->unwritten.isEmpty() || !_state->unencoded.isNull();
}

bool WorkingImageWriter::isPending() const
{
    const std::lock_guard lock(_state->mutex);
    return _state->isPending;
}

} // namespace pelmira
