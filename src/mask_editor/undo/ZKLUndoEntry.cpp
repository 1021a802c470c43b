#include "mask_editor/undo/ZKLUndoEntry.h"

#include "mask_editor/undo/ZKLCompressionHelper.h"
#include "platform/base/RunLoop.h"
#include "platform/pixels/AlphaPlane.h"
#include "platform/storage/PropertyList.h"

#include <QByteArray>
#include <QFileInfo>
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <limits>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

namespace pelmira {
namespace {

/// A quick undo of the newest level then finds its plane raw.
constexpr double CompressionDelay = 0.7;

constexpr const char* CompressedLengthKey = "compressedDataLen";
constexpr const char* OriginalLengthKey = "originalDataLen";
constexpr const char* CompressedDataKey = "compressedData";

/// Made together with the first entry, and shared by all of them.
SerialQueue& compressionQueue()
{
    static SerialQueue queue("com.zkl.undo.compression", globalQueue(QueuePriority::Background));
    return queue;
}

std::int32_t lengthIn(const PropertyList& list, const char* key)
{
    const std::int64_t length = list.integer(key).value_or(0);
    return length > std::numeric_limits<std::int32_t>::max()
               ? 0
               : static_cast<std::int32_t>(std::max<std::int64_t>(length, 0));
}

MallocBlock planeOf(const TiledMask& tiles)
{
    MallocBlock plane(static_cast<std::uint8_t*>(std::malloc(tiles.planeSize())));
    if (plane)
        tiles.copyTo(plane.get());
    return plane;
}

QByteArray bytesOf(const MallocBlock& block, std::int32_t length)
{
    return {reinterpret_cast<const char*>(block.get()), length};
}

} // namespace

ZKLUndoEntry::ZKLUndoEntry(Private, MallocBlock originalData, std::int32_t originalDataLen,
                           MallocBlock compressedData, std::int32_t compressedDataLen)
    : _originalDataLen(originalDataLen), _compressedDataLen(compressedDataLen),
      _originalData(std::move(originalData)), _compressedData(std::move(compressedData))
{
}

ZKLUndoEntry::~ZKLUndoEntry() = default;

std::shared_ptr<ZKLUndoEntry> ZKLUndoEntry::initWithBuffer(MallocBlock block, std::int32_t length)
{
    compressionQueue();
    return std::make_shared<ZKLUndoEntry>(Private{}, std::move(block), length, nullptr, 0);
}

std::shared_ptr<ZKLUndoEntry> ZKLUndoEntry::initWithTiles(TiledMask tiles)
{
    auto entry = initWithBuffer(nullptr, static_cast<std::int32_t>(tiles.planeSize()));
    entry->_tiles = std::move(tiles);
    return entry;
}

std::shared_ptr<ZKLUndoEntry> ZKLUndoEntry::initWithURL(const QString& path)
{
    const std::optional<PropertyList> list = PropertyList::dictionaryWithContentsOfURL(path);
    if (!list)
        return nullptr;
    const std::int32_t originalLength = lengthIn(*list, OriginalLengthKey);
    const std::int32_t namedLength = lengthIn(*list, CompressedLengthKey);
    const std::optional<QByteArray> data = list->data(CompressedDataKey);
    if (!data || originalLength < 1 || namedLength < 1)
        return nullptr;
    const qsizetype length = std::min<qsizetype>(namedLength, data->size());
    // One byte at least, zeroed: an entry without any block would be neither raw nor compressed.
    MallocBlock block(static_cast<std::uint8_t*>(
        std::calloc(static_cast<std::size_t>(std::max<qsizetype>(length, 1)), 1)));
    if (!block)
        throw std::bad_alloc();
    std::memcpy(block.get(), data->constData(), static_cast<std::size_t>(length));
    return std::make_shared<ZKLUndoEntry>(Private{}, nullptr, originalLength, std::move(block),
                                          static_cast<std::int32_t>(length));
}

std::uint8_t* ZKLUndoEntry::originalDataWithLengthPtr(std::int32_t* lengthPtr)
{
    if (lengthPtr)
        *lengthPtr = _originalDataLen;
    if (!_originalData && !_tiles.isEmpty()) {
        _originalData = planeOf(_tiles);
    } else if (!_originalData) {
        _originalData = ZKLCompressionHelper::compressionDecodeSrc(
            _compressedData.get(), _compressedDataLen, _originalDataLen);
        _compressedData.reset();
        _compressedDataLen = 0;
    }
    return _originalData.get();
}

bool ZKLUndoEntry::restoreInto(const PixelSpan& pixels)
{
    if (std::size_t(_originalDataLen) != std::size_t(pixels.width) * pixels.height)
        return false;
    const std::uint8_t* plane = originalDataWithLengthPtr(nullptr);
    if (plane)
        restoreAlphaPlane(pixels, plane);
    return plane != nullptr;
}

void ZKLUndoEntry::compress()
{
    compressionQueue().asyncAfter(CompressionDelay,
                                  [self = shared_from_this()] { self->encodeInBackground(); });
}

void ZKLUndoEntry::encodeInBackground()
{
    for (const std::shared_ptr<MaskTile>& tile : _tiles.tiles())
        if (!_cancelled)
            tile->pack();
    if (_cancelled || !_originalData || !_tiles.isEmpty())
        return;
    MallocBlock compressed;
    std::int32_t length = 0;
    ZKLCompressionHelper::compressionEncodeSrc(_originalData.get(), _originalDataLen, compressed,
                                               length);
    if (_cancelled)
        return;
    // Jobs are copyable, a block isn't.
    mainQueue().async([self = shared_from_this(),
                       shared = std::make_shared<MallocBlock>(std::move(compressed)),
                       length] { self->swapIn(std::move(*shared), length); });
}

void ZKLUndoEntry::swapIn(MallocBlock compressed, std::int32_t length)
{
    if (_cancelled || length == 0)
        return;
    _compressedData = std::move(compressed);
    _compressedDataLen = length;
    _originalData.reset();
}

bool ZKLUndoEntry::saveToURL(const QString& path, bool* isWritten) const
{
    QByteArray data;
    std::int32_t length = _compressedDataLen;
    if (_compressedData) {
        data = bytesOf(_compressedData, _compressedDataLen);
    } else if (_originalData || !_tiles.isEmpty()) {
        const MallocBlock plane = _originalData ? nullptr : planeOf(_tiles);
        const std::uint8_t* source = _originalData ? _originalData.get() : plane.get();
        if (!source)
            return false;
        MallocBlock compressed;
        ZKLCompressionHelper::compressionEncodeSrc(source, _originalDataLen, compressed, length);
        data = bytesOf(compressed, length);
    } else {
        return false;
    }
    // Without memory to pack it in, there is nothing to put in the old one's place.
    if (length == 0) {
        if (isWritten)
            *isWritten = false;
        return true;
    }
    // A file that stands here goes only when the new one takes its place: a process killed in
    // between would have lost both. What isn't a file can't be replaced by one.
    if (QFileInfo(path).isDir()) {
        std::error_code ignored;
        std::filesystem::remove_all(path.toStdString(), ignored);
    }
    PropertyList list;
    list.set(CompressedLengthKey, length);
    list.set(OriginalLengthKey, _originalDataLen);
    list.set(CompressedDataKey, data);
    const bool written = list.writeToURL(path, true);
    if (isWritten)
        *isWritten = written;
    return true;
}

} // namespace pelmira
