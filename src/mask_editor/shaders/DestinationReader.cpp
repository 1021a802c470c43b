#include "mask_editor/shaders/DestinationReader.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace pelmira {
namespace {

constexpr int largestTile = 1024;
constexpr GLint scratchUnit = 1;

int scratchSide(int pixels)
{
    return static_cast<int>(std::bit_ceil(static_cast<unsigned>(std::max(pixels, 64))));
}

} // namespace

DestinationReader::DestinationReader(std::shared_ptr<GLContext> context)
    : _context(std::move(context))
{
}

DestinationReader::~DestinationReader()
{
    deleteOrForget(_context.get(), _scratch);
}

void DestinationReader::draw(const ShaderProgram& program, const QRect& rectangle)
{
    if (rectangle.isEmpty())
        return;
    if (fetchesDirectly()) {
        drawStrip();
        return;
    }
    glUniform1i(program.destination, scratchUnit);
    glEnable(GL_SCISSOR_TEST);
    for (int y = rectangle.top(); y <= rectangle.bottom(); y += largestTile) {
        for (int x = rectangle.left(); x <= rectangle.right(); x += largestTile) {
            const QRect tile = QRect(x, y, largestTile, largestTile) & rectangle;
            if (!copyTile(tile))
                continue;
            glUniform4f(program.destinationArea, float(tile.x()), float(tile.y()),
                        1.0F / float(_scratchSize.width()), 1.0F / float(_scratchSize.height()));
            glScissor(tile.x(), tile.y(), tile.width(), tile.height());
            drawStrip();
        }
    }
    glDisable(GL_SCISSOR_TEST);
}

bool DestinationReader::copyTile(const QRect& tile)
{
    glActiveTexture(GL_TEXTURE0 + scratchUnit);
    const QSize needed(std::max(scratchSide(tile.width()), _scratchSize.width()),
                       std::max(scratchSide(tile.height()), _scratchSize.height()));
    const bool isMade = (_scratch && needed == _scratchSize) || makeScratch(needed);
    if (isMade) {
        glBindTexture(GL_TEXTURE_2D, _scratch.get());
        glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, tile.x(), tile.y(), tile.width(),
                            tile.height());
    }
    glActiveTexture(GL_TEXTURE0);
    return isMade;
}

// Of a texture without pixels a shader reads opaque ones, and would paint those into the photo.
bool DestinationReader::makeScratch(QSize size)
{
    _scratch = GLTexture::generate();
    glBindTexture(GL_TEXTURE_2D, _scratch.get());
    setLinearClampedSampling();
    // A fragment reads exactly its own pixel.
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    discardGLErrors();
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, size.width(), size.height(), 0, GL_RGBA,
                 GL_UNSIGNED_BYTE, nullptr);
    const bool isMade = glGetError() == GL_NO_ERROR;
    _scratchSize = isMade ? size : QSize();
    return isMade;
}

} // namespace pelmira
