#pragma once

#include <QColor>
#include <QImage>
#include <QSizeF>

namespace pelmira {

/// A slider's track that runs from one colour to the other, with round ends and a pale line inside.
/// One pixel a point. Null for a size of nothing or an invalid colour.
QImage trackImage(const QColor& from, const QColor& to, QSizeF size);

} // namespace pelmira
