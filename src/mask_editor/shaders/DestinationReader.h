#pragma once

#include "mask_editor/shaders/ShaderProgram.h"
#include "platform/gl/GLContext.h"

#include <QRect>

#include <functional>
#include <memory>

namespace pelmira {

/// Draws with programs that read the pixels they replace. Where the GPU lets a shader see its
/// target that is a plain draw; elsewhere the touched rectangle is first copied into a scratch
/// texture, tile by tile, so that the scratch stays small however large the target is.
class DestinationReader {
public:
    explicit DestinationReader(std::shared_ptr<GLContext> context);
    ~DestinationReader();

    /// Runs `draw` so that it covers `rectangle`, in pixels of the bound framebuffer, y up, which
    /// must lie inside it. `program` is in use and its other uniforms are set.
    void draw(const ShaderProgram& program, const QRect& rectangle,
              const std::function<void()>& draw);

    /// Whether shaders read their target directly.
    bool fetchesDirectly() const { return _context->capabilities().framebufferFetch; }

private:
    void copyTile(const QRect& tile);

    std::shared_ptr<GLContext> _context;
    GLTexture _scratch;
    QSize _scratchSize;
};

} // namespace pelmira
