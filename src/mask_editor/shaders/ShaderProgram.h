#pragma once

#include "platform/gl/GLObjects.h"

#include <QMatrix4x4>

#include <array>
#include <cstdint>

namespace pelmira {

/// Slots to which every program's attributes are bound before linking.
enum VertexAttribute : GLuint {
    AttributePosition = 0,
    AttributeTexCoord = 3,
    AttributeTexCoord2 = 4,
};

/// One program and where its uniforms are; -1, to which GL sets nothing, for one that it hasn't.
struct ShaderProgram {
    GLProgram name;
    bool isLinked = false;
    int stampsPerDraw = 1; ///< what one draw of a brush's program can take
    GLint modelViewProjectionMatrix = -1;
    GLint texture = -1;
    GLint backgroundColor = -1;
    GLint borderSize = -1;
    GLint numSides = -1;
    GLint angle = -1;
    GLint stampStep = -1;
    GLint stampCount = -1;
    GLint imageSize = -1;
    GLint destination = -1;
    GLint destinationArea = -1;

    /// False for one that failed to load: GL would go on with the program before it, so nothing is
    /// to be drawn.
    [[nodiscard]] bool use(const QMatrix4x4& matrix) const
    {
        if (!isLinked)
            return false;
        glUseProgram(name.get());
        glUniformMatrix4fv(modelViewProjectionMatrix, 1, GL_FALSE, matrix.constData());
        return true;
    }
};

/// A corner of a textured quad.
struct QuadVertex {
    float x, y, z, u, v;
};
using Quad = std::array<QuadVertex, 4>;

/// Points the attributes at a quad's corners, which must outlive the draw.
inline void setQuadAttributes(const Quad& quad)
{
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glEnableVertexAttribArray(AttributePosition);
    glEnableVertexAttribArray(AttributeTexCoord);
    glVertexAttribPointer(AttributePosition, 3, GL_FLOAT, GL_FALSE, sizeof(QuadVertex), &quad[0].x);
    glVertexAttribPointer(AttributeTexCoord, 2, GL_FLOAT, GL_FALSE, sizeof(QuadVertex), &quad[0].u);
}

/// Draws the four corners as a strip.
inline void drawStrip()
{
    static constexpr std::array<std::uint8_t, 4> stripIndices{0, 1, 2, 3};
    glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_BYTE, stripIndices.data());
}

} // namespace pelmira
