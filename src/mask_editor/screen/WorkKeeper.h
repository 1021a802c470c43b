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
    /// `tell` shows the user a line: what can't be kept, and why.
    WorkKeeper(MaskEditorEngine& engine, ResumeWorkHelper& work,
               std::function<void(const QString&)> tell);
    ~WorkKeeper();
    WorkKeeper(const WorkKeeper&) = delete;
    WorkKeeper& operator=(const WorkKeeper&) = delete;

    void touched(const TouchEvent& event);
    void touchesCancelled() { _saver.setFingerDown(false); }
    /// The user turns elsewhere.
    void saveNow() { _saver.saveNow(); }
    /// The mask that is kept couldn't be read. Until something changes, it is worth more than the
    /// one that is shown.
    void leaveWhatIsKept();
    /// A save waits for the job that has the pixels.
    bool isSaveDue() const { return _saver.isDue(); }

private:
    bool save();
    void saveWasLost();

    MaskEditorEngine& _engine;
    ResumeWorkHelper& _work;
    const ResumeWorkHelper::Session _session;
    OGLESMappedTexture& _surface;
    const std::function<void(const QString&)> _tell;
    const std::shared_ptr<WorkKeeper*> _self; ///< for the block that the saved work keeps
    MaskSaver _saver;
};

} // namespace pelmira
