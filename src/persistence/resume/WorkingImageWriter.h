#pragma once

#include <QByteArray>
#include <QImage>

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

namespace pelmira {

/// Brings a photo's working image to disk: encodes it on the user-initiated queue and writes it on
/// the main queue. What an earlier photo has left is cleared once for each new one, by whoever
/// comes first: the encoding job, or a mask that is saved before that job had its turn. So a mask
/// never goes with an older clearing, and never stands beside another photo's image.
///
/// The jobs hold on to nothing but the writer's own state, and give up once the writer is gone.
/// Everything is called on the main thread.
class WorkingImageWriter {
public:
    /// `clear` removes the work on disk and is safe from any thread; `write` puts an encoded image
    /// there, on the main thread; one that it can't is kept for another try. It also gets the empty
    /// one of an image that there was no memory to encode, which is kept as well.
    WorkingImageWriter(std::function<void()> clear, std::function<bool(const QByteArray&)> write);
    ~WorkingImageWriter();
    WorkingImageWriter(const WorkingImageWriter&) = delete;
    WorkingImageWriter& operator=(const WorkingImageWriter&) = delete;

    /// Schedules clearing, encoding and writing, in place of what an earlier call has scheduled.
    void schedule(QImage image);
    /// Drops what is scheduled, and waits while it is being cleared.
    void cancel();
    /// Clears what is there now if that is still to be done.
    void clearIfStillDue();
    /// Waits until the scheduled image is encoded and writes it, if that is still to be done.
    void finish();
    bool isPending() const;
    bool hasUnwritten() const;
    /// Writes once more what could not be written; what could not be encoded, at the price of
    /// encoding it here.
    void retry();

private:
    struct State;
    std::shared_ptr<State> _state;
};

} // namespace pelmira
