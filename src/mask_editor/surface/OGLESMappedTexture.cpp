#include "mask_editor/surface/OGLESMappedTexture.h"

#include "platform/base/Log.h"
#include "platform/pixels/BitmapContext.h"
#include "platform/pixels/PremultipliedAlpha.h"

#include <QPainter>

#include <cassert>
#include <cstring>
#include <utility>

namespace pelmira {
namespace {

void drawBitmap(const QImage& image, QImage& context)
{
    QPainter painter(&context);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, image);
}

} // namespace

std::unique_ptr<OGLESMappedTexture>
OGLESMappedTexture::oGLESMappedTexture(std::shared_ptr<GLContext> context)
{
    return std::unique_ptr<OGLESMappedTexture>(new OGLESMappedTexture(std::move(context)));
}

OGLESMappedTexture::OGLESMappedTexture(std::shared_ptr<GLContext> context)
    : _context(std::move(context))
{
}

bool OGLESMappedTexture::makeMappedTexture(QSizeF size)
{
    _width = size.width() > 0 ? static_cast<std::uint32_t>(size.width()) : 0;
    _height = size.height() > 0 ? static_cast<std::uint32_t>(size.height()) : 0;
    _baseAddress = nullptr;
    PixelStore::Failure failure;
    _store = PixelStore::make(_context, _width, _height, failure);
    if (!_store) {
        logLine(failure.stage == PixelStore::Failure::Stage::Buffer
                    ? "Error at CVPixelBufferCreate returned NULL %d"
                    : "Error at CVOpenGLESTextureCacheCreateTextureFromImage returned NULL %d",
                failure.status);
        return false;
    }
    assert(_store->pixels().bytesPerRow >= _width * 4);
    _changes = ChangedTiles(bounds().size());
    _changes.mark(bounds());
    return true;
}

void OGLESMappedTexture::bindTexture() const
{
    glBindTexture(GL_TEXTURE_2D, texture());
}

bool OGLESMappedTexture::lockTexture()
{
    const int status = _store ? _store->lock() : -1;
    if (status != 0) {
        logLine("Error at CVPixelBufferLockBaseAddress %d", status);
        return false;
    }
    _baseAddress = _store->pixels().pixels;
    if (!_baseAddress) {
        logLine("Error at CVPixelBufferGetBaseAddress returned NULL");
        return false;
    }
    return true;
}

bool OGLESMappedTexture::unlockTexture()
{
    const int status = _store ? _store->unlock() : -1;
    if (status != 0) {
        logLine("Error at CVPixelBufferUnlockBaseAddress %d", status);
        _isUnlockDue = true;
        if (!std::exchange(_isOutdated, true) && outdatedBlock)
            outdatedBlock();
        return false;
    }
    _isUnlockDue = false;
    _isOutdated = false;
    _baseAddress = nullptr;
    return true;
}

bool OGLESMappedTexture::unlockPart()
{
    return _store && _store->unlockPart();
}

void OGLESMappedTexture::releaseTexture()
{
    assert(!_baseAddress || _isUnlockDue); // without GL memory the pixels wait for the next try
    if (_store)
        _store->releaseTexture();
}

bool OGLESMappedTexture::restoreTexture()
{
    const bool isRestored = _store && _store->restoreTexture();
    _isUnlockDue |= isRestored;
    return isRestored;
}

void OGLESMappedTexture::copyImageIntoBuffer(const QImage& image, const PixelSpan& pixels)
{
    QImage context =
        createBGRABitmapContextWithSize(image.size(), pixels.pixels, pixels.bytesPerRow);
    drawBitmap(image, context);
    unpremultiply(pixels);
}

void OGLESMappedTexture::copyFlatPixelsIntoBuffer(const std::uint32_t* flat)
{
    changePixels([&](const PixelSpan& pixels) {
        for (std::uint32_t y = 0; y < pixels.height; ++y)
            std::memcpy(pixels.row(y), flat + std::size_t(pixels.width) * y, pixels.width * 4UL);
        return QRegion(bounds());
    });
}

void OGLESMappedTexture::copyIntoFlatPixelsBuffer(std::uint32_t* flat) const
{
    const PixelSpan pixels = lockedPixels();
    for (std::uint32_t y = 0; y < pixels.height; ++y)
        std::memcpy(flat + std::size_t(pixels.width) * y, pixels.row(y), pixels.width * 4UL);
}

void OGLESMappedTexture::changePixels(const std::function<QRegion(const PixelSpan&)>& change)
{
    pixelsChanged(change(_store->pixels()));
}

void OGLESMappedTexture::pixelsChanged(const QRegion& written)
{
    assert(_baseAddress);
    _store->changedByCPU(written);
    noteChange(written);
}

void OGLESMappedTexture::drawPixels(const QRect& rectangle, const std::function<void()>& draw)
{
    // Over pixels that GL never got nothing can be drawn: what is read back would be theirs.
    restoreTexture();
    if (!_store || (_isUnlockDue && !unlockTexture()))
        return;
    assert(!_baseAddress);
    draw();
    _store->changedByGPU(rectangle);
    noteChange(rectangle);
    if (_isReady && changedBlock)
        changedBlock();
}

void OGLESMappedTexture::noteChange(const QRegion& pixels)
{
    // A job that only reads has changed nothing that would have to be saved.
    if (pixels.isEmpty())
        return;
    ++_changeCount;
    _changes.mark(pixels);
}

ChangedTiles OGLESMappedTexture::takeChanges()
{
    return std::exchange(_changes, ChangedTiles(bounds().size()));
}

void OGLESMappedTexture::setReady(bool isReady)
{
    _isReady = isReady;
    if (isReady && changedBlock)
        changedBlock();
}

QRect OGLESMappedTexture::bounds() const
{
    return {0, 0, static_cast<int>(_width), static_cast<int>(_height)};
}

PixelSpan OGLESMappedTexture::lockedPixels() const
{
    return _baseAddress ? _store->pixels() : PixelSpan{};
}

std::vector<std::uint32_t> OGLESMappedTexture::imageToBGRAData(const QImage& image)
{
    std::vector<std::uint32_t> flat(std::size_t(image.width()) * image.height());
    QImage context = createBGRABitmapContextWithSize(image.size(), flat.data());
    if (context.isNull())
        return {};
    drawBitmap(image, context);
    return flat;
}

} // namespace pelmira
