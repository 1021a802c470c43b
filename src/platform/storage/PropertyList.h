#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>

namespace pelmira {

/// A property list whose top-level object is a dictionary of integers and data blocks, which is
/// all that the application stores in this form.
class PropertyList {
public:
    void set(const std::string& key, std::int64_t value) { _values[key] = value; }
    void set(const std::string& key, QByteArray value) { _values[key] = std::move(value); }

    /// Nothing if the key is absent or its value of another type.
    std::optional<std::int64_t> integer(const std::string& key) const;
    std::optional<QByteArray> data(const std::string& key) const;

    /// Writes the XML form. Atomically means beside the target first, then on disk, then renamed
    /// over it: a reader finds the old file or the new one. False if nothing could be written.
    bool writeToURL(const QString& path, bool atomically) const;

    /// Reads the XML or the binary form; values of other types are left out. Nothing if the file
    /// can't be read, is above 256 MiB, or is damaged.
    static std::optional<PropertyList> dictionaryWithContentsOfURL(const QString& path);
    static std::optional<PropertyList> fromBytes(const QByteArray& bytes);

private:
    static std::optional<PropertyList> fromXml(const QByteArray& bytes);

    std::map<std::string, std::variant<std::int64_t, QByteArray>> _values;
};

} // namespace pelmira
