#include "persistence/resume/MaskSaver.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr double secondsOfRest = 1.0;
constexpr double mostSecondsUnsaved = 10.0;

} // namespace

MaskSaver::Clock MaskSaver::Clock::system()
{
    return {mainTime, [](double seconds, Job job) {
                if (seconds > 0.0)
                    mainQueue().asyncAfter(seconds, std::move(job));
                else
                    mainQueue().async(std::move(job));
            }};
}

MaskSaver::MaskSaver(Mask mask, Clock clock)
    : _mask(std::move(mask)), _clock(std::move(clock)), _self(std::make_shared<MaskSaver*>(this))
{
}

MaskSaver::~MaskSaver()
{
    *_self = nullptr;
}

void MaskSaver::maskChanged()
{
    if (!_mask.isReady())
        return;
    look();
    if (!_isDue) {
        wait();
        return;
    }
    // Not within the call of whoever is just letting go of the pixels.
    _clock.after(0.0, [self = _self] {
        if (*self && (*self)->_isDue)
            (*self)->saveNow();
    });
}

void MaskSaver::setFingerDown(bool isDown)
{
    _isFingerDown = isDown;
    wait();
}

void MaskSaver::saveNow()
{
    _isDue = !_mask.isReady();
    if (_isDue)
        return;
    look();
    if (isUnsaved())
        save();
}

void MaskSaver::takeAsSaved()
{
    _seen = _mask.changeCount();
    _saved = _seen;
}

void MaskSaver::saveWasLost()
{
    _failed = _saved;
    _saved = 0;
    _firstChange = _clock.now();
}

void MaskSaver::look()
{
    const std::uint64_t count = _mask.changeCount();
    if (count == _seen)
        return;
    _lastChange = _clock.now();
    if (!isUnsaved())
        _firstChange = _lastChange;
    _seen = count;
}

double MaskSaver::secondsToRest() const
{
    const double end =
        std::min(_lastChange + secondsOfRest, _firstChange + mostSecondsUnsaved) - _clock.now();
    return std::max(end, 0.0);
}

void MaskSaver::wait()
{
    if (_isWaiting || _isFingerDown || !isUnsaved() || _seen == _failed)
        return;
    _isWaiting = true;
    _clock.after(secondsToRest(), [self = _self] {
        if (*self)
            (*self)->alarm();
    });
}

// A finger that is down, or a job on the pixels, comes back to this when it ends.
void MaskSaver::alarm()
{
    _isWaiting = false;
    if (_isFingerDown || !_mask.isReady())
        return;
    look();
    if (isUnsaved() && secondsToRest() <= 0.0)
        save();
    else
        wait();
}

void MaskSaver::save()
{
    if (_mask.save()) {
        _saved = _seen;
        _failed = 0;
        return;
    }
    _firstChange = _clock.now();
    if (std::exchange(_failed, _seen) == 0 && failedBlock)
        failedBlock();
}

} // namespace pelmira
