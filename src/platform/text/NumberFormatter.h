#pragma once

#include <QLocale>
#include <QString>

namespace pelmira {

/// Turns numbers into the text that a reader of the locale expects.
class NumberFormatter {
public:
    /// The number as a whole percentage, 0.2 as "20%" or "20 %". Halves round to even.
    static QString percent(double number, const QLocale& locale = QLocale());
};

} // namespace pelmira
