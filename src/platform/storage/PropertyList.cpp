#include "platform/storage/PropertyList.h"

#include "platform/storage/AtomicFile.h"
#include "platform/storage/BinaryPropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>
#include <type_traits>

namespace pelmira {
namespace {

constexpr qint64 LargestFile = qint64{256} << 20;
// libplist frees its tree by recursion, so the nesting that a file can ask for is bounded first.
// A flat dictionary needs some dozens of tags.
constexpr qsizetype MostTags = 4096;

struct FreeNode {
    void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, FreeNode>;

struct FreeText {
    void operator()(char* text) const { plist_to_xml_free(text); }
};

bool writeAll(QIODevice& file, const QByteArray& bytes)
{
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

std::optional<std::int64_t> PropertyList::integer(const std::string& key) const
{
    const auto found = _values.find(key);
    if (found == _values.end() || !std::holds_alternative<std::int64_t>(found->second))
        return std::nullopt;
    return std::get<std::int64_t>(found->second);
}

std::optional<QByteArray> PropertyList::data(const std::string& key) const
{
    const auto found = _values.find(key);
    if (found == _values.end() || !std::holds_alternative<QByteArray>(found->second))
        return std::nullopt;
    return std::get<QByteArray>(found->second);
}

bool PropertyList::writeToURL(const QString& path, bool atomically) const
{
    const Node dictionary(plist_new_dict());
    for (const auto& [key, value] : _values) {
        plist_t node = nullptr;
        if (const auto* number = std::get_if<std::int64_t>(&value))
            node = plist_new_uint(static_cast<std::uint64_t>(*number));
        else if (const auto* bytes = std::get_if<QByteArray>(&value))
            node = plist_new_data(bytes->constData(), static_cast<std::uint64_t>(bytes->size()));
        plist_dict_set_item(dictionary.get(), key.c_str(), node);
    }
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(dictionary.get(), &text, &length);
    const std::unique_ptr<char, FreeText> owner(text);
    if (!text)
        return false;
    const auto xml = QByteArray::fromRawData(text, static_cast<qsizetype>(length));
    if (!atomically) {
        QFile file(path);
        return writeAll(file, xml) && file.flush();
    }
    // The toolkit's own way takes a small file for written although its last bytes were not.
    return !writeFileAtomically(path, xml, IfExists::Replace, Durability::OutlivesPowerCut);
}

std::optional<PropertyList> PropertyList::dictionaryWithContentsOfURL(const QString& path)
{
    QFile file(path);
    // A pipe would keep us waiting, a device would never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > LargestFile)
        return std::nullopt;
    return fromBytes(file.read(file.size()));
}

std::optional<PropertyList> PropertyList::fromBytes(const QByteArray& bytes)
{
    if (!bytes.startsWith("bplist"))
        return fromXml(bytes);
    PropertyList list;
    const bool isWhole = readBinaryPropertyList(
        bytes, [&list](const std::string& key, std::int64_t value) { list.set(key, value); },
        [&list](const std::string& key, QByteArray value) { list.set(key, std::move(value)); });
    if (!isWhole)
        return std::nullopt;
    return list;
}

std::optional<PropertyList> PropertyList::fromXml(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > LargestFile || bytes.count('<') > MostTags)
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_xml(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &root);
    const Node owner(root);
    if (!root || plist_get_node_type(root) != PLIST_DICT)
        return std::nullopt;

    PropertyList list;
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(root, &position);
    const std::unique_ptr<void, decltype(&std::free)> iterator(position, &std::free);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(root, position, &key, &value);
        const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, &std::free);
        if (!key || !value)
            return list;
        std::uint64_t number = 0;
        switch (plist_get_node_type(value)) {
        case PLIST_UINT: // negative ones come as their two's complement
            plist_get_uint_val(value, &number);
            list.set(key, static_cast<std::int64_t>(number));
            break;
        case PLIST_DATA: {
            const char* bytesOfValue = plist_get_data_ptr(value, &number);
            list.set(key, QByteArray(bytesOfValue, static_cast<qsizetype>(number)));
            break;
        }
        default:
            break;
        }
    }
}

} // namespace pelmira
