#pragma once

#include "platform/gl/GLContext.h"
#include "platform/pixels/PixelSpan.h"

#include <QRegion>

#include <GLES2/gl2.h>

#include <memory>
#include <string>

namespace pelmira {

/// The memory behind a surface: one array of pixels that the CPU may change between `lock` and
/// `unlock`, that GL samples as a texture and draws into as a render target.
///
/// This is the seam for machines whose CPU and GPU share memory: such a store would map a
/// dma-buf here and ignore the reported changes.
class PixelStore {
public:
    /// Why a store could not be made, for the log; `status` is the system's own error number.
    struct Failure {
        enum class Stage { Buffer, Texture } stage = Stage::Buffer;
        int status = 0;
    };

    /// The best store for this context, or nothing with `failure` filled.
    static std::unique_ptr<PixelStore> make(std::shared_ptr<GLContext> context, std::uint32_t width,
                                            std::uint32_t height, Failure& failure);

    PixelStore() = default;
    PixelStore(const PixelStore&) = delete;
    PixelStore& operator=(const PixelStore&) = delete;
    virtual ~PixelStore() = default;

    /// The pixels, with a stride that is a multiple of 16 bytes. Valid while locked.
    virtual PixelSpan pixels() const = 0;
    virtual GLuint texture() const = 0;

    /// Lets the CPU see everything that GL has drawn. 0, or a status for the log.
    virtual int lock() = 0;
    /// Lets GL see everything that the CPU has written. 0, or a status for the log.
    virtual int unlock() = 0;
    /// Does a share of what `unlock` has to do, a few milliseconds' worth. True if that leaves
    /// some.
    virtual bool unlockPart() = 0;

    /// Gives up what only GL needs, after bringing to the CPU what it lacks; kept if that fails.
    /// Until `restoreTexture` nothing is sent, and nothing can be drawn or sampled.
    virtual void releaseTexture() = 0;
    /// GL gets its texture and every pixel by the next `unlock`, or in parts. False if it has them.
    virtual bool restoreTexture() = 0;
    /// False from `releaseTexture` until the texture is there again.
    virtual bool hasTexture() const = 0;

    /// Pixels that the lock's holder has written, from any thread, before `unlock`.
    virtual void changedByCPU(const QRegion& pixels) = 0;
    /// Pixels that a draw call on the main thread may have written.
    virtual void changedByGPU(const QRect& pixels) = 0;
};

} // namespace pelmira
