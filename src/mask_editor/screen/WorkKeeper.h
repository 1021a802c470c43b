#pragma once

#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/resume/MaskSaver.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/touch/Touches.h"

#include <functional>
#include <memory>

namespace pelmira {

/// Keeps an open photo's mask across the end of the process: listens to its surface and to the
/// fingers, and hands copies of the mask to the saved work. Main thread only.
class WorkKeeper {
public:
    /// Needs an open photo, whose working image is the present saved work's. Both outlive this.
    WorkKeeper(MaskEditorEngine& engine, ResumeWorkHelper& work);
    ~WorkKeeper();
    WorkKeeper(const WorkKeeper&) = delete;
    WorkKeeper& operator=(const WorkKeeper&) = delete;

    void touched(const TouchEvent& event);
    void touchesCancelled() { _saver.setFingerDown(false); }
    /// The user turns elsewhere.
    void saveNow() { _saver.saveNow(); }
    /// Until something changes, what is kept is worth more than what is shown.
    void leaveWhatIsKept() { _saver.takeAsSaved(); }
    /// A save waits for the job that has the pixels.
    bool isSaveDue() const { return _saver.isDue(); }

    /// The mask can't be read back; what was saved last stays.
    void setFailedBlock(std::function<void()> block) { _saver.failedBlock = std::move(block); }
    /// Photo or mask can't be written.
    void setUnwrittenBlock(std::function<void()> block);

private:
    bool save();

    MaskEditorEngine& _engine;
    ResumeWorkHelper& _work;
    const ResumeWorkHelper::Session _session;
    OGLESMappedTexture& _surface;
    const std::shared_ptr<WorkKeeper*> _self; ///< for the block that the saved work keeps
    MaskSaver _saver;
};

} // namespace pelmira
