#include "platform/storage/BinaryPropertyList.h"

#include <cstddef>
#include <optional>

// Layout: "bplist00", the objects, a table of their offsets, and a trailer of 32 bytes: 5 unused,
// 1 sort version, the size of an offset, the size of a reference, then three 64-bit numbers: the
// count of objects, the top object, the position of the table. All numbers are big-endian.

namespace pelmira {
namespace {

constexpr std::uint64_t HeaderSize = 8;
constexpr std::uint64_t TrailerSize = 32;
constexpr std::uint64_t MostEntries = 1024;

enum Kind : unsigned { KindInteger = 0x1, KindData = 0x4, KindAscii = 0x5, KindDictionary = 0xD };

struct Object {
    unsigned kind = 0;
    std::uint64_t count = 0;    // of bytes or entries; for an integer the power of two of its size
    std::uint64_t position = 0; // of what follows the count
};

class Reader {
public:
    explicit Reader(const QByteArray& file) : _file(file) {}

    bool open()
    {
        if (size() < HeaderSize + TrailerSize || !_file.startsWith("bplist0"))
            return false;
        const std::uint64_t trailer = size() - TrailerSize;
        _offsetSize = *number(trailer + 6, 1);
        _referenceSize = *number(trailer + 7, 1);
        _objects = *number(trailer + 8, 8);
        _top = *number(trailer + 16, 8);
        _table = *number(trailer + 24, 8);
        return true;
    }

    std::optional<Object> top() const { return object(_top); }

    /// The object that the dictionary's or array's reference number `index` points to.
    std::optional<Object> referenced(const Object& from, std::uint64_t index) const
    {
        const auto id = number(from.position + index * _referenceSize, _referenceSize);
        return id ? object(*id) : std::nullopt;
    }

    std::optional<std::int64_t> integer(const Object& object) const
    {
        // 16-byte integers exist for unsigned numbers from 2^63 on, which nothing here needs.
        const auto value = object.count <= 3
                               ? number(object.position, std::uint64_t{1} << object.count)
                               : std::nullopt;
        return value ? std::optional(static_cast<std::int64_t>(*value)) : std::nullopt;
    }

    std::optional<QByteArray> bytes(const Object& object) const
    {
        if (!fits(object.position, object.count))
            return std::nullopt;
        return _file.mid(static_cast<qsizetype>(object.position),
                         static_cast<qsizetype>(object.count));
    }

private:
    std::uint64_t size() const { return static_cast<std::uint64_t>(_file.size()); }

    bool fits(std::uint64_t position, std::uint64_t count) const
    {
        return position <= size() && count <= size() - position;
    }

    std::optional<std::uint64_t> number(std::uint64_t position, std::uint64_t count) const
    {
        if (count == 0 || count > 8 || !fits(position, count))
            return std::nullopt;
        std::uint64_t value = 0;
        for (std::uint64_t i = 0; i < count; ++i)
            value =
                value << 8 | static_cast<std::uint8_t>(_file[static_cast<qsizetype>(position + i)]);
        return value;
    }

    std::optional<Object> object(std::uint64_t id) const
    {
        if (id >= _objects || id > size()) // the second keeps the product below from overflowing
            return std::nullopt;
        const auto position = number(_table + id * _offsetSize, _offsetSize);
        const auto marker = position ? number(*position, 1) : std::nullopt;
        if (!marker)
            return std::nullopt;
        Object found{static_cast<unsigned>(*marker >> 4), *marker & 0xF, *position + 1};
        if (found.kind == KindInteger || found.count != 0xF)
            return found;
        // A count of 15 or more follows as an integer object.
        const auto sizeMarker = number(found.position, 1);
        if (!sizeMarker || (*sizeMarker >> 4) != KindInteger || (*sizeMarker & 0xF) > 3)
            return std::nullopt;
        const std::uint64_t countSize = std::uint64_t{1} << (*sizeMarker & 0xF);
        const auto count = number(found.position + 1, countSize);
        if (!count)
            return std::nullopt;
        found.count = *count;
        found.position += 1 + countSize;
        return found;
    }

    const QByteArray& _file;
    std::uint64_t _offsetSize = 0;
    std::uint64_t _referenceSize = 0;
    std::uint64_t _objects = 0;
    std::uint64_t _top = 0;
    std::uint64_t _table = 0;
};

} // namespace

bool readBinaryPropertyList(const QByteArray& file,
                            const std::function<void(const std::string&, std::int64_t)>& integer,
                            const std::function<void(const std::string&, QByteArray)>& data)
{
    Reader reader(file);
    if (!reader.open())
        return false;
    const auto top = reader.top();
    if (!top || top->kind != KindDictionary || top->count > MostEntries)
        return false;
    for (std::uint64_t i = 0; i < top->count; ++i) {
        const auto key = reader.referenced(*top, i);
        const auto value = reader.referenced(*top, top->count + i);
        if (!key || !value)
            return false;
        if (key->kind != KindAscii || (value->kind != KindInteger && value->kind != KindData))
            continue;
        const auto name = reader.bytes(*key);
        const auto number = value->kind == KindInteger ? reader.integer(*value) : std::nullopt;
        const auto block = value->kind == KindData ? reader.bytes(*value) : std::nullopt;
        if (!name || (!number && !block))
            return false;
        if (number)
            integer(name->toStdString(), *number);
        else
            data(name->toStdString(), *block);
    }
    return true;
}

} // namespace pelmira
