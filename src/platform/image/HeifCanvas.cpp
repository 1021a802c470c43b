#include "platform/image/HeifCanvas.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace pelmira {
namespace {

constexpr std::uint64_t longestDescription = 18; // an overlay's, up to its canvas

/// Numbers and pieces from the front on. Behind the end there are zeros.
class BoxReader {
public:
    explicit BoxReader(QByteArrayView bytes) : _left(bytes) {}

    bool isAtEnd() const { return _left.isEmpty(); }
    QByteArrayView left() const { return _left; }

    QByteArrayView take(std::uint64_t length)
    {
        const auto all = static_cast<std::uint64_t>(_left.size());
        const QByteArrayView piece = _left.first(static_cast<qsizetype>(std::min(length, all)));
        _left = _left.sliced(piece.size());
        return piece;
    }

    /// Big-endian.
    std::uint64_t number(std::uint64_t length)
    {
        const QByteArrayView digits = take(length);
        if (static_cast<std::uint64_t>(digits.size()) < length)
            return 0;
        std::uint64_t value = 0;
        for (const char digit : digits)
            value = value << 8 | static_cast<unsigned char>(digit);
        return value;
    }

private:
    QByteArrayView _left;
};

/// A box that says to be longer than there is goes to the end.
template <class Visit>
void forEachBox(QByteArrayView bytes, const Visit& visit)
{
    BoxReader reader(bytes);
    while (!reader.isAtEnd()) {
        std::uint64_t size = reader.number(4);
        const QByteArrayView type = reader.take(4);
        std::uint64_t header = 8;
        if (size == 1) {
            size = reader.number(8);
            header = 16;
        }
        if (size != 0 && size < header)
            return;
        visit(type, size == 0 ? reader.take(UINT64_MAX) : reader.take(size - header));
    }
}

using ItemID = std::uint64_t;

/// The items put together of others, and which are overlays.
void addDerivedItems(QHash<ItemID, bool>& isOverlay, QByteArrayView iinf)
{
    BoxReader reader(iinf);
    const std::uint64_t version = reader.number(1);
    reader.take(3);
    reader.take(version == 0 ? 2 : 4); // how many
    forEachBox(reader.left(), [&](QByteArrayView type, QByteArrayView content) {
        if (type != "infe")
            return;
        BoxReader entry(content);
        const std::uint64_t entryVersion = entry.number(1);
        entry.take(3);
        const ItemID item = entry.number(entryVersion >= 3 ? 4 : 2);
        entry.take(2);
        const QByteArrayView kind = entry.take(4);
        if (kind == "grid" || kind == "iovl")
            isOverlay[item] = kind == "iovl";
    });
}

std::uint64_t canvasOf(QByteArrayView description, bool isOverlay)
{
    BoxReader reader(description);
    reader.take(1);
    const std::uint64_t width = reader.number(1) & 1 ? 4 : 2;
    reader.take(isOverlay ? 8 : 2); // a colour, or rows and columns
    const std::uint64_t columns = reader.number(width);
    return columns * reader.number(width);
}

std::uint64_t largestCanvas(const QHash<ItemID, bool>& isOverlay, QByteArrayView iloc,
                            QByteArrayView file, QByteArrayView idat)
{
    BoxReader reader(iloc);
    const std::uint64_t version = reader.number(1);
    reader.take(3);
    const std::uint64_t lengths = reader.number(2); // four of them
    const std::uint64_t idLength = version < 2 ? 2 : 4;
    std::uint64_t largest = 0;
    for (std::uint64_t left = reader.number(idLength); left > 0 && !reader.isAtEnd(); --left) {
        const ItemID item = reader.number(idLength);
        const bool isInIdat = version > 0 && (reader.number(2) & 15) == 1;
        reader.take(2);
        const std::uint64_t base = reader.number(lengths >> 4 & 15);
        const bool isDerived = isOverlay.contains(item);
        QByteArray description;
        for (std::uint64_t extents = reader.number(2); extents > 0 && !reader.isAtEnd();
             --extents) {
            if (version > 0)
                reader.take(lengths & 15);
            const std::uint64_t offset = base + reader.number(lengths >> 12);
            const std::uint64_t length = reader.number(lengths >> 8 & 15);
            if (!isDerived || description.size() >= qsizetype{longestDescription})
                continue;
            BoxReader data(isInIdat ? idat : file);
            data.take(offset);
            description +=
                data.take(length == 0 ? longestDescription : std::min(length, longestDescription));
        }
        if (isDerived)
            largest = std::max(largest, canvasOf(description, isOverlay[item]));
    }
    return largest;
}

} // namespace

std::uint64_t largestHeifCanvas(QByteArrayView file)
{
    std::uint64_t largest = 0;
    forEachBox(file, [&](QByteArrayView type, QByteArrayView meta) {
        if (type != "meta")
            return;
        QHash<ItemID, bool> isOverlay;
        QByteArrayView idat;
        std::vector<QByteArrayView> locations;
        forEachBox(meta.sliced(std::min<qsizetype>(meta.size(), 4)),
                   [&](QByteArrayView childType, QByteArrayView content) {
                       if (childType == "iinf")
                           addDerivedItems(isOverlay, content);
                       else if (childType == "iloc")
                           locations.push_back(content);
                       else if (childType == "idat" && idat.isNull())
                           idat = content;
                   });
        for (const QByteArrayView& iloc : locations)
            largest = std::max(largest, largestCanvas(isOverlay, iloc, file, idat));
    });
    return largest;
}

} // namespace pelmira
