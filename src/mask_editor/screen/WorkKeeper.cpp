#include "mask_editor/screen/WorkKeeper.h"

#include <algorithm>
#include <utility>

namespace pelmira {

WorkKeeper::WorkKeeper(MaskEditorEngine& engine, ResumeWorkHelper& work)
    : _engine(engine), _work(work), _session(work.session()),
      _surface(*engine.canvas.fgMappedTexture), _self(std::make_shared<WorkKeeper*>(this)),
      _saver({[this] { return _surface.isReady(); }, [this] { return _surface.changeCount(); },
              [this] { return save(); }})
{
    _surface.changedBlock = [this] { _saver.maskChanged(); };
    _saver.maskChanged(); // a photo that was just opened is work too
}

WorkKeeper::~WorkKeeper()
{
    *_self = nullptr;
    _surface.changedBlock = nullptr;
}

void WorkKeeper::setUnwrittenBlock(std::function<void()> block)
{
    _work.setFailedBlock([self = _self, block = std::move(block)] {
        if (!*self)
            return;
        (*self)->_saver.saveWasLost();
        block();
    });
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
