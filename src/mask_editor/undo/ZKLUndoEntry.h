#pragma once

#include "mask_editor/undo/TiledMask.h"
#include "platform/base/MallocBlock.h"

#include <QString>
#include <atomic>
#include <cstdint>
#include <memory>

namespace pelmira {

/// One level of undo: the mask plane (width × height alpha bytes, rows tightly packed from the
/// image's top), raw, compressed, or in tiles that it shares with its neighbours. It is also the
/// form in which a mask is kept across launches.
///
/// A level of undo is used on the main thread; an entry that was read, or handed over to be
/// written, on one thread at a time. The compression queue only reads the raw plane and the
/// cancelled flag of an entry that its job keeps alive; the swap is made on the main thread. Tiles
/// look after themselves.
class ZKLUndoEntry : public std::enable_shared_from_this<ZKLUndoEntry> {
    struct Private {};

public:
    ZKLUndoEntry(Private, MallocBlock originalData, std::int32_t originalDataLen,
                 MallocBlock compressedData, std::int32_t compressedDataLen);
    ~ZKLUndoEntry();
    ZKLUndoEntry(const ZKLUndoEntry&) = delete;
    ZKLUndoEntry& operator=(const ZKLUndoEntry&) = delete;

    /// A raw entry that takes the block over.
    static std::shared_ptr<ZKLUndoEntry> initWithBuffer(MallocBlock block, std::int32_t length);

    /// An entry of a mask in tiles, which is not empty.
    static std::shared_ptr<ZKLUndoEntry> initWithTiles(TiledMask tiles);

    /// A compressed entry from a file that saveToURL or the platform has written, its content
    /// unchecked. Nothing if there is no such file, it lacks the data, or a length is below 1 or
    /// beyond 32 bits. The entry never holds more than the file does: a compressed length above
    /// that of the data present is taken as the latter. Throws std::bad_alloc.
    static std::shared_ptr<ZKLUndoEntry> initWithURL(const QString& path);

    /// The raw plane, still the entry's; a compressed entry is decoded and stays raw from then on,
    /// one of tiles gets the plane beside them. A damaged block leaves zeros. Null only if there is
    /// no memory for the plane.
    std::uint8_t* originalDataWithLengthPtr(std::int32_t* lengthPtr);

    /// Makes the plane the alpha of as many pixels; others are left alone, the plane unread. On any
    /// thread, for an entry that nobody else has.
    bool restoreInto(const PixelSpan& pixels);

    /// Compresses in the background 0.7 seconds from now. Returns at once.
    void compress();
    /// Whatever compression is pending or running changes nothing any more. For good.
    void cancelCompression() { setCancelled(true); }

    /// Replaces the file by a property list of the compressed form. True if there was anything to
    /// write, even if writing failed; then the file that stood there is still the old one, which
    /// `isWritten` tells.
    bool saveToURL(const QString& path, bool* isWritten = nullptr) const;

    /// The mask in tiles; empty for an entry that was made from a block or a file.
    const TiledMask& tiles() const { return _tiles; }
    const std::uint8_t* originalData() const { return _originalData.get(); }
    void setOriginalData(MallocBlock data) { _originalData = std::move(data); }
    std::int32_t originalDataLen() const { return _originalDataLen; }
    void setOriginalDataLen(std::int32_t length) { _originalDataLen = length; }
    const std::uint8_t* compressedData() const { return _compressedData.get(); }
    void setCompressedData(MallocBlock data) { _compressedData = std::move(data); }
    std::int32_t compressedDataLen() const { return _compressedDataLen; }
    void setCompressedDataLen(std::int32_t length) { _compressedDataLen = length; }
    bool cancelled() const { return _cancelled; }
    void setCancelled(bool cancelled) { _cancelled = cancelled; }

private:
    void encodeInBackground();
    void swapIn(MallocBlock compressed, std::int32_t length);

    std::atomic<bool> _cancelled = false;
    std::int32_t _originalDataLen;
    std::int32_t _compressedDataLen;
    MallocBlock _originalData;
    MallocBlock _compressedData;
    TiledMask _tiles;
};

} // namespace pelmira
