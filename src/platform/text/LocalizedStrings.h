#pragma once

#include <QAnyStringView>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <mutex>

namespace pelmira {

/// The tables of texts by key, one file "pelmira_LANGUAGE.qm" for each language, in one folder.
/// Safe from any thread.
class Bundle {
public:
    /// The application's own, in the user's language.
    static const Bundle& mainBundle();

    /// Takes the table of the first language in the list that has one; "de-CH" is served by "de"
    /// too. When there is none, English.
    Bundle(QString folder, const QStringList& preferredLanguages);

    /// The key's text; without one the given value, and with an empty value the key itself.
    QString localizedString(const QString& forKey, const QString& value) const;

    /// The key's text in the user's language, else in English, else in the table "Base". A key that
    /// has no text anywhere comes back itself; a text equal to its key counts as missing.
    QString localized(const QString& key) const;

private:
    using Table = std::unique_ptr<const QTranslator>;

    Table open(const QString& language) const;
    const QTranslator* fallback() const;

    const QString _folder;
    Table _table;
    mutable std::once_flag _fallbackSought;
    mutable Table _fallback; // opened at the first key that needs it
};

/// Of the main bundle.
QString localized(QAnyStringView key);
/// The key's text in the user's language, else the given one; English isn't tried.
QString localizedWithDefaultStr(const QString& key, const QString& defaultText);

} // namespace pelmira
