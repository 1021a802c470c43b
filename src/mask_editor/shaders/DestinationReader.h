#pragma once

#include "mask_editor/shaders/ShaderProgram.h"
#include "platform/gl/GLContext.h"

#include <QRect>

#include <memory>

namespace pelmira {

/// Draws quads with programs that read the pixels they replace. Where the GPU lets a shader see its
/// target that is a plain draw; elsewhere the touched rectangle is first copied into a scratch
/// texture, tile by tile, so that the scratch stays small however large the target is.
class DestinationReader {
public:
    explicit DestinationReader(std::shared_ptr<GLContext> context);
    ~DestinationReader();

    /// Draws the quad that the attributes point at. `rectangle` is what it touches, in pixels of
    /// the bound framebuffer, y up, and lies inside that. `program` is in use and its other
    /// uniforms are set. Without memory for a copy of the target nothing is drawn.
    void draw(const ShaderProgram& program, const QRect& rectangle);

    /// Whether shaders read their target directly.
    bool fetchesDirectly() const { return _context->capabilities().framebufferFetch; }

private:
    bool copyTile(const QRect& tile);
    bool makeScratch(QSize size);

    std::shared_ptr<GLContext> _context;
    GLTexture _scratch;
    QSize _scratchSize;
};

} // namespace pelmira
