#pragma once

#include "mask_editor/surface/EditorCanvas.h"

namespace pelmira {

/// For the length of a scope GL draws into the surface of an open photo, and of that only into its
/// mask: colour is shut off, so that no shader can change it. The context is current.
class MaskTarget {
public:
    explicit MaskTarget(const EditorCanvas& canvas) : _binding(canvas.fgImage.frameBuffer)
    {
        const QRect surface = canvas.fgMappedTexture->bounds();
        glViewport(0, 0, surface.width(), surface.height());
        glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_TRUE);
    }
    MaskTarget(const MaskTarget&) = delete;
    MaskTarget& operator=(const MaskTarget&) = delete;
    ~MaskTarget() { glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE); }

private:
    const FramebufferBinding _binding;
};

} // namespace pelmira
