#pragma once

#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/resume/MaskSaver.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/touch/Touches.h"

#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// Keeps an open photo's mask across the end of the process: listens to its surface and to the
/// fingers, and hands copies of the mask to the saved work. Without a saved work, or without an
/// open photo, it does nothing. Main thread only.
class WorkKeeper {
public:
    /// `tell` shows the user a line: what can't be kept, and why.
    explicit WorkKeeper(std::function<void(const QString&)> tell);
    ~WorkKeeper();
    WorkKeeper(const WorkKeeper&) = delete;
    WorkKeeper& operator=(const WorkKeeper&) = delete;

    /// Where the work is kept; outlives this.
    void setWork(ResumeWorkHelper* work);
    /// Opens the photo, whose working image is the saved work's, with the mask that is kept, if
    /// there is one. The engine outlives this.
    void open(MaskEditorEngine& engine, QImage photo);
    /// The user gives the work up.
    void clearSavedWork();

    void touched(const TouchEvent& event);
    void touchesCancelled();
    /// The user turns elsewhere.
    void saveNow();
    /// A save waits for the job that has the pixels.
    bool isSaveDue() const { return _saver && _saver->isDue(); }

private:
    void watch();
    bool save();
    void saveWasLost(bool isNews);

    ResumeWorkHelper* _work = nullptr;
    ResumeWorkHelper::Session _session = 0;
    MaskEditorEngine* _engine = nullptr; ///< once a photo is open
    const std::function<void(const QString&)> _tell;
    const std::shared_ptr<WorkKeeper*> _self; ///< for the block that the saved work keeps
    std::optional<MaskSaver> _saver;          ///< while there is something to keep
};

} // namespace pelmira
