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
            copyTile(tile);
            glUniform4f(program.destinationArea, float(tile.x()), float(tile.y()),
                        1.0F / float(_scratchSize.width()), 1.0F / float(_scratchSize.height()));
            glScissor(tile.x(), tile.y(), tile.width(), tile.height());
            drawStrip();
        }
    }
    glDisable(GL_SCISSOR_TEST);
}

void DestinationReader::copyTile(const QRect& tile)
{
    glActiveTexture(GL_TEXTURE0 + scratchUnit);
    const QSize needed(std::max(scratchSide(tile.width()), _scratchSize.width()),
                       std::max(scratchSide(tile.height()), _scratchSize.height()));
    if (!_scratch || needed != _scratchSize) {
        _scratch = GLTexture::generate();
        _scratchSize = needed;
        glBindTexture(GL_TEXTURE_2D, _scratch.get());
        setLinearClampedSampling();
        // A fragment reads exactly its own pixel.
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, needed.width(), needed.height(), 0, GL_RGBA,
                     GL_UNSIGNED_BYTE, nullptr);
    }
    glBindTexture(GL_TEXTURE_2D, _scratch.get());
    glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, tile.x(), tile.y(), tile.width(), tile.height());
    glActiveTexture(GL_TEXTURE0);
}

} // namespace pelmira
