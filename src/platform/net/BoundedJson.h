#pragma once

#include <QByteArray>
#include <QJsonObject>

#include <optional>

namespace pelmira {

/// The object that a JSON text (RFC 8259) is; nothing for other texts, and for one in which objects
/// and arrays lie in each other more than `deepest` levels deep.
std::optional<QJsonObject> jsonObjectFromData(const QByteArray& text, int deepest);

} // namespace pelmira
