#pragma once

#include "mask_editor/surface/EditorCanvas.h"
#include "platform/base/RunLoop.h"
#include "platform/pixels/PixelSpan.h"

#include <QRegion>

#include <deque>
#include <functional>
#include <memory>

namespace pelmira {

/// Who has the surface, and who waits for it. One job at a time works on its pixels in the
/// background. A press that meets it neither gets in its way nor is lost: it takes effect when the
/// job ends, after those that came before it. Main thread only.
class SurfaceJobs {
public:
    /// Changes the locked pixels and returns what it wrote.
    using Work = std::function<QRegion(const PixelSpan&)>;

    explicit SurfaceJobs(EditorCanvas& canvas) : _canvas(canvas) {}

    /// Runs the work on a background queue; `then` follows on the main thread, when GL has what was
    /// written and before anything that waits. False, and nothing is run, while there is no surface
    /// to be had.
    bool start(Work work, Job then);
    /// Runs the press at once, or, while a job has the surface or others wait, in its turn.
    void whenReady(Job press);
    /// Forgets what waits, since nobody is there to see it. A running job goes on.
    void dropWaiting() { _waiting.clear(); }

    /// What has to outlive a running job.
    std::weak_ptr<void> owner;

private:
    void finish(const QRegion& written, const Job& then);
    void handBack(const Job& then);
    void serveWaiting();

    EditorCanvas& _canvas;
    std::deque<Job> _waiting;
    bool _isServing = false;
};

} // namespace pelmira
