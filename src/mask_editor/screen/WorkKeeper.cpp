#include "mask_editor/screen/WorkKeeper.h"

#include "platform/text/LocalizedStrings.h"

#include <algorithm>
#include <utility>

namespace pelmira {

WorkKeeper::WorkKeeper(MaskEditorEngine& engine, ResumeWorkHelper& work,
                       std::function<void(const QString&)> tell)
    : _engine(engine), _work(work), _session(work.session()),
      _surface(*engine.canvas.fgMappedTexture), _tell(std::move(tell)),
      _self(std::make_shared<WorkKeeper*>(this)),
      _saver({[this] { return _surface.isReady(); }, [this] { return _surface.changeCount(); },
              [this] { return save(); }})
{
    // The mask can't be read back; what was saved last stays.
    _saver.failedBlock = [this] { _tell(localized("mainscreen.error.maskNotKept")); };
    _surface.changedBlock = [this] { _saver.maskChanged(); };
    _saver.maskChanged(); // a photo that was just opened is work too
    // Photo or mask can't be written.
    _work.setFailedBlock([self = _self] {
        if (*self)
            (*self)->saveWasLost();
    });
}

WorkKeeper::~WorkKeeper()
{
    *_self = nullptr;
    _surface.changedBlock = nullptr;
}

void WorkKeeper::leaveWhatIsKept()
{
    _saver.takeAsSaved();
    _tell(localized("mainscreen.error.maskNotRead"));
}

void WorkKeeper::saveWasLost()
{
    _saver.saveWasLost();
    _tell(localized("homescreen.error.workIsNotKept").arg(_work.folderPath()));
}

void WorkKeeper::touched(const TouchEvent& event)
{
    _saver.setFingerDown(std::any_of(event.allTouches.begin(), event.allTouches.end(),
                                     [](const Touch& touch) { return !touch.hasEnded; }));
}

bool WorkKeeper::save()
{
    std::shared_ptr<ZKLUndoEntry> mask = _engine.history.getUndoBuffer();
    if (!mask)
        return false;
    _work.saveWorkMaskWithUndoEntry(std::move(mask), _session);
    return true;
}

} // namespace pelmira
