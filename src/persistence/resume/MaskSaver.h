#pragma once

#include "platform/base/RunLoop.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace pelmira {

/// Decides when the mask under way is saved: about a second after its last change, once no finger
/// is down and nobody works on the pixels; and at once when the application leaves the front. A
/// hand that never rests for a second is interrupted by a save after ten, between two touches. A
/// save that found the pixels busy is made when that job ends. What was saved isn't saved again.
/// Main thread only.
class MaskSaver {
public:
    struct Clock {
        /// Seconds, from whenever.
        std::function<double()> now;
        std::function<void(double seconds, Job job)> after;

        static Clock system();
    };
    struct Mask {
        /// Nobody works on the pixels; only then is anything else asked.
        std::function<bool()> isReady;
        /// Grows with every change; above 0.
        std::function<std::uint64_t()> changeCount;
        /// Copies the mask and has it written; false if it can't be read.
        std::function<bool()> save;
    };

    explicit MaskSaver(Mask mask, Clock clock = Clock::system());
    ~MaskSaver();
    MaskSaver(const MaskSaver&) = delete;
    MaskSaver& operator=(const MaskSaver&) = delete;

    /// The mask may have changed, or a job on the pixels has ended.
    void maskChanged();
    void setFingerDown(bool isDown);
    /// Without waiting for the hand to rest.
    void saveNow();
    /// The mask as it is need not be saved.
    void takeAsSaved();
    /// What was saved last did not get to the disk: it counts as unsaved, but is only tried again
    /// with the next change or by `saveNow`.
    void saveWasLost();
    /// A save is to be made as soon as the job on the pixels ends.
    bool isDue() const { return _isDue; }

    /// The mask can't be read: what was saved last stays. Told once, until a save succeeds again.
    std::function<void()> failedBlock;

private:
    bool isUnsaved() const { return _seen != _saved; }
    void look();
    double secondsToRest() const;
    void wait();
    void alarm();
    void save();

    const Mask _mask;
    const Clock _clock;
    const std::shared_ptr<MaskSaver*> _self; ///< for jobs that outlive this
    std::uint64_t _seen = 0;
    std::uint64_t _saved = 0;
    double _firstChange = 0.0; ///< of those that aren't saved
    double _lastChange = 0.0;
    bool _isFingerDown = false;
    bool _isWaiting = false; ///< for the alarm
    bool _isDue = false;
    std::uint64_t _failed = 0; ///< the state that couldn't be read; waits for another
};

} // namespace pelmira
