#include "mask_editor/screen/WorkKeeper.h"

#include "platform/text/LocalizedStrings.h"

#include <algorithm>
#include <utility>

namespace pelmira {

WorkKeeper::WorkKeeper(std::function<void(const QString&)> tell)
    : _tell(std::move(tell)), _self(std::make_shared<WorkKeeper*>(this))
{
}

WorkKeeper::~WorkKeeper()
{
    *_self = nullptr;
    if (_saver)
        _engine->canvas.fgMappedTexture->changedBlock = nullptr;
}

void WorkKeeper::setWork(ResumeWorkHelper* work)
{
    _work = work;
    watch();
}

void WorkKeeper::open(MaskEditorEngine& engine, QImage photo)
{
    const bool isKept = _work && _work->hasSavedWork();
    engine.open(std::move(photo), isKept ? _work->maskReader() : nullptr,
                [this, isKept](bool isMaskRead) {
                    if (!isKept || isMaskRead || !_saver)
                        return;
                    // Until something changes, what is kept is worth more than what is shown.
                    _saver->takeAsSaved();
                    _tell(localized("mainscreen.error.maskNotRead"));
                });
    _engine = &engine;
    watch();
}

void WorkKeeper::watch()
{
    _saver.reset();
    if (!_work || !_engine || !_engine->canvas.fgMappedTexture)
        return;
    _session = _work->session();
    OGLESMappedTexture& surface = *_engine->canvas.fgMappedTexture;
    _saver.emplace(MaskSaver::Mask{[&surface] { return surface.isReady(); },
                                   [&surface] { return surface.changeCount(); },
                                   [this] { return save(); }});
    // The mask can't be read back; what was saved last stays.
    _saver->failedBlock = [this] { _tell(localized("mainscreen.error.maskNotKept")); };
    surface.changedBlock = [this] { _saver->maskChanged(); };
    _saver->maskChanged(); // a photo that was just opened is work too
    // Photo or mask can't be written.
    _work->setFailedBlock([self = _self](bool isNews) {
        if (*self)
            (*self)->saveWasLost(isNews);
    });
}

void WorkKeeper::clearSavedWork()
{
    if (_work)
        _work->clearSavedWork();
}

void WorkKeeper::saveWasLost(bool isNews)
{
    _saver->saveWasLost();
    if (isNews)
        _tell(localized("homescreen.error.workIsNotKept").arg(_work->folderPath()));
}

void WorkKeeper::touched(const TouchEvent& event)
{
    if (_saver)
        // The keyboard's aim may stand for hours.
        _saver->setFingerDown(
            std::any_of(event.allTouches.begin(), event.allTouches.end(), [](const Touch& touch) {
                return !touch.hasEnded && touch.kind != TouchKind::Keys;
            }));
}

void WorkKeeper::touchesCancelled()
{
    if (_saver)
        _saver->setFingerDown(false);
}

void WorkKeeper::saveNow()
{
    if (_saver)
        _saver->saveNow();
}

bool WorkKeeper::save()
{
    std::shared_ptr<ZKLUndoEntry> mask = _engine->history.getUndoBuffer();
    if (!mask)
        return false;
    _work->saveWorkMaskWithUndoEntry(std::move(mask), _session);
    return true;
}

} // namespace pelmira
