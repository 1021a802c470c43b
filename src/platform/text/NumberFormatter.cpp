#include "platform/text/NumberFormatter.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace pelmira {

namespace {

constexpr QChar noBreakSpace(0x00a0);

// QLocale knows the sign and the digits but not how the two are put together; the groups are
// those of the Unicode locale data's percent patterns.
enum class SignPlace { After, AfterSpace, Before, BeforeSpace };

SignPlace signPlace(QLocale::Language language)
{
    static constexpr std::array spaced{
        QLocale::Belarusian,       QLocale::Bosnian,    QLocale::Bulgarian,
        QLocale::Catalan,          QLocale::Czech,      QLocale::Danish,
        QLocale::German,           QLocale::Spanish,    QLocale::Finnish,
        QLocale::French,           QLocale::Galician,   QLocale::Croatian,
        QLocale::Armenian,         QLocale::Icelandic,  QLocale::Lithuanian,
        QLocale::Luxembourgish,    QLocale::Macedonian, QLocale::NorwegianBokmal,
        QLocale::NorwegianNynorsk, QLocale::Romanian,   QLocale::Russian,
        QLocale::Slovak,           QLocale::Slovenian,  QLocale::Serbian,
        QLocale::Swedish,
    };
    if (language == QLocale::Turkish)
        return SignPlace::Before;
    if (language == QLocale::Basque)
        return SignPlace::BeforeSpace;
    return std::find(spaced.begin(), spaced.end(), language) != spaced.end() ? SignPlace::AfterSpace
                                                                             : SignPlace::After;
}

} // namespace

QString NumberFormatter::percent(double number, const QLocale& locale)
{
    const QString digits = locale.toString(std::nearbyint(number * 100.0), 'f', 0);
    const QString sign = locale.percent();
    switch (signPlace(locale.language())) {
    case SignPlace::Before:
        return sign + digits;
    case SignPlace::BeforeSpace:
        return sign + noBreakSpace + digits;
    case SignPlace::AfterSpace:
        return digits + noBreakSpace + sign;
    case SignPlace::After:
        break;
    }
    return digits + sign;
}

} // namespace pelmira
