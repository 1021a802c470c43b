#pragma once

#include "mask_editor/surface/PixelStore.h"
#include "platform/gl/GLObjects.h"
#include "platform/gl/PixelTransfer.h"

#include <cstdlib>

namespace pelmira {

/// A pixel store kept twice, in memory and in a texture. Only what the other side has changed is
/// ever carried across, so a small edit costs a small transfer however large the photo is.
class MirroredPixelStore final : public PixelStore {
public:
    static std::unique_ptr<MirroredPixelStore> make(std::shared_ptr<GLContext> context,
                                                    std::uint32_t width, std::uint32_t height,
                                                    Failure& failure);
    ~MirroredPixelStore() override;

    PixelSpan pixels() const override { return _pixels; }
    GLuint texture() const override { return _texture.get(); }
    int lock() override;
    int unlock() override;
    bool unlockPart() override;
    void releaseTexture() override;
    bool restoreTexture() override;
    bool hasTexture() const override { return _hasStorage; }
    void changedByCPU(const QRegion& pixels) override;
    void changedByGPU(const QRect& pixels) override;

private:
    MirroredPixelStore(std::shared_ptr<GLContext> context, PixelSpan pixels);

    /// Marks the pixels as seen by GL once they are.
    int send(const QRegion& pixels);
    /// False if GL has no memory for it.
    bool makeStorage();
    QRect bounds() const;

    struct Free {
        void operator()(std::uint32_t* memory) const { std::free(memory); }
    };

    std::shared_ptr<GLContext> _context;
    std::unique_ptr<std::uint32_t, Free> _memory;
    PixelSpan _pixels;
    PixelTransfer _transfer;
    GLTexture _texture;
    GLFramebuffer _reader; ///< has the texture as its colour attachment, for read-backs
    QRegion _newerOnCPU;
    QRegion _newerOnGPU;
    bool _hasStorage = true;  ///< the texture is of the photo's size
    bool _isReleased = false; ///< and isn't to be
};

} // namespace pelmira
