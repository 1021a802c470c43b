#include "mask_editor/surface/MirroredPixelStore.h"

#include "mask_editor/surface/ChangedTiles.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace pelmira {
namespace {

constexpr std::uint32_t strideAlignment = 16;
// Beyond this many rectangles fewer and larger transfers are cheaper than the calls: a stroke is
// a long string of small ones, which may well cross the whole photo.
constexpr int mostRectangles = 64;
constexpr int mostRowsOfTiles = 256;
// More than the widest texture has in a row.
constexpr int pixelsInPart = 2 << 20;

void add(QRegion& region, const QRegion& pixels, const QRect& image)
{
    region += pixels & image;
    if (region.rectCount() <= mostRectangles)
        return;
    ChangedTiles tiles(image.size());
    tiles.mark(region);
    region = tiles.region();
    if (region.rectCount() > mostRowsOfTiles)
        region = region.boundingRect();
}

} // namespace

std::unique_ptr<PixelStore> PixelStore::make(std::shared_ptr<GLContext> context,
                                             std::uint32_t width, std::uint32_t height,
                                             Failure& failure)
{
    return MirroredPixelStore::make(std::move(context), width, height, failure);
}

std::unique_ptr<MirroredPixelStore> MirroredPixelStore::make(std::shared_ptr<GLContext> context,
                                                             std::uint32_t width,
                                                             std::uint32_t height, Failure& failure)
{
    failure = {Failure::Stage::Buffer, EINVAL};
    if (!context || !context->makeCurrent() || width == 0 || height == 0 ||
        width > std::uint32_t(context->capabilities().maxTextureSize) ||
        height > std::uint32_t(context->capabilities().maxTextureSize))
        return nullptr;

    const std::uint32_t stride = (width * 4 + strideAlignment - 1) & ~(strideAlignment - 1);
    // Zeroed, so that a pixel never written is transparent rather than left-over memory.
    auto* memory = static_cast<std::uint32_t*>(std::calloc(height, stride));
    if (!memory) {
        failure.status = ENOMEM;
        return nullptr;
    }
    std::unique_ptr<MirroredPixelStore> store(
        new MirroredPixelStore(std::move(context), {memory, width, height, stride}));

    store->_texture = GLTexture::generate();
    glBindTexture(GL_TEXTURE_2D, store->_texture.get());
    setLinearClampedSampling();
    if (!store->_transfer.allocateTexture(static_cast<int>(width), static_cast<int>(height))) {
        failure = {Failure::Stage::Texture, static_cast<int>(glGetError())};
        return nullptr;
    }
    store->_reader = GLFramebuffer::generate();
    const FramebufferBinding binding(store->_reader.get());
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D,
                           store->_texture.get(), 0);
    store->_newerOnCPU = store->bounds();
    return store;
}

MirroredPixelStore::MirroredPixelStore(std::shared_ptr<GLContext> context, PixelSpan pixels)
    : _context(std::move(context)), _memory(pixels.pixels), _pixels(pixels),
      _transfer(_context->capabilities())
{
}

MirroredPixelStore::~MirroredPixelStore()
{
    deleteOrForget(_context.get(), _texture, _reader);
}

int MirroredPixelStore::lock()
{
    if (_newerOnGPU.isEmpty())
        return 0;
    if (!_context->makeCurrent())
        return EIO;
    const FramebufferBinding binding(_reader.get());
    glFinish();
    // What couldn't be read stays marked: those bytes are old.
    for (const QRect& rectangle : _newerOnGPU)
        if (!_transfer.readBack(_pixels, rectangle))
            return EIO;
    _newerOnGPU = QRegion();
    return 0;
}

int MirroredPixelStore::unlock()
{
    return send(_newerOnCPU);
}

bool MirroredPixelStore::unlockPart()
{
    if (_isReleased)
        return false;
    if (!_hasStorage) // which takes a while where the driver clears it
        return makeStorage();
    QRegion part;
    int left = pixelsInPart;
    for (const QRect& r : _newerOnCPU) {
        const int rows = std::min(left / r.width(), r.height());
        part += QRect(r.topLeft(), QSize(r.width(), rows));
        left -= rows * r.width();
        if (rows < r.height())
            break;
    }
    return send(part) == 0 && !_newerOnCPU.isEmpty();
}

void MirroredPixelStore::releaseTexture()
{
    if (_isReleased || lock() != 0 || !_context->makeCurrent())
        return;
    // It keeps its name and its place in framebuffers.
    const TextureBinding binding(_texture.get());
    _isReleased = _transfer.allocateTexture(1, 1);
    _hasStorage = !_isReleased;
}

bool MirroredPixelStore::restoreTexture()
{
    if (!std::exchange(_isReleased, false))
        return false;
    _newerOnCPU = bounds();
    return true;
}

bool MirroredPixelStore::makeStorage()
{
    if (_hasStorage || !_context->makeCurrent())
        return _hasStorage;
    const TextureBinding binding(_texture.get());
    _hasStorage = _transfer.allocateTexture(bounds().width(), bounds().height());
    return _hasStorage;
}

int MirroredPixelStore::send(const QRegion& pixels)
{
    if (pixels.isEmpty() || _isReleased)
        return 0;
    if (!_context->makeCurrent() || !makeStorage())
        return EIO;
    const TextureBinding binding(_texture.get());
    // What couldn't be sent stays marked, and goes with the next.
    bool isSent = true;
    for (const QRect& rectangle : pixels)
        isSent = isSent && _transfer.upload(_pixels, rectangle);
    if (!isSent)
        return EIO;
    _newerOnCPU -= pixels;
    return 0;
}

QRect MirroredPixelStore::bounds() const
{
    return {0, 0, static_cast<int>(_pixels.width), static_cast<int>(_pixels.height)};
}

void MirroredPixelStore::changedByCPU(const QRegion& pixels)
{
    add(_newerOnCPU, pixels, bounds());
}

void MirroredPixelStore::changedByGPU(const QRect& pixels)
{
    add(_newerOnGPU, pixels, bounds());
}

} // namespace pelmira
