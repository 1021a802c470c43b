#pragma once

#include <QByteArray>
#include <cstdint>
#include <functional>
#include <string>

namespace pelmira {

/// Reads the integers and data blocks of a binary property list ("bplist00") whose top object is
/// a dictionary; entries of other types are passed over. The general parsers of this form follow
/// references, which lets a small file ask for any depth and any amount of memory; this one looks
/// at one level only. False if the file is damaged; entries may have been reported by then.
bool readBinaryPropertyList(const QByteArray& file,
                            const std::function<void(const std::string&, std::int64_t)>& integer,
                            const std::function<void(const std::string&, QByteArray)>& data);

} // namespace pelmira
