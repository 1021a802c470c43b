#include "platform/text/LocalizedStrings.h"

#include <QFile>
#include <QLocale>

#include <utility>

namespace pelmira {
namespace {

const QString english = QStringLiteral("en");
const QString base = QStringLiteral("Base");

QString pathOfTable(const QString& folder, const QString& language)
{
    return QStringLiteral("%1/pelmira_%2.qm").arg(folder, language);
}

QString textOrValue(const QTranslator* table, const QString& key, const QString& value)
{
    const QString text = table ? table->translate("", key.toUtf8().constData()) : QString();
    if (!text.isEmpty())
        return text;
    return value.isEmpty() ? key : value;
}

} // namespace

const Bundle& Bundle::mainBundle()
{
    static const Bundle bundle(QStringLiteral(":/strings"), QLocale::system().uiLanguages());
    return bundle;
}

Bundle::Bundle(QString folder, const QStringList& preferredLanguages) : _folder(std::move(folder))
{
    for (QString language : preferredLanguages) {
        language.replace(u'-', u'_');
        while (!_table && !language.isEmpty()) {
            _table = open(language);
            language.truncate(qMax(0, language.lastIndexOf(u'_')));
        }
    }
    if (!_table)
        _table = open(english);
}

Bundle::Table Bundle::open(const QString& language) const
{
    auto table = std::make_unique<QTranslator>();
    // An absolute path: the loader would otherwise search for tables of similar names.
    if (!table->load(pathOfTable(_folder, language)))
        return nullptr;
    return table;
}

const QTranslator* Bundle::fallback() const
{
    std::call_once(_fallbackSought, [this] {
        const bool hasEnglish = QFile::exists(pathOfTable(_folder, english));
        _fallback = open(hasEnglish ? english : base);
    });
    return _fallback.get();
}

QString Bundle::localizedString(const QString& forKey, const QString& value) const
{
    return textOrValue(_table.get(), forKey, value);
}

QString Bundle::localized(const QString& key) const
{
    const QString text = localizedString(key, QString());
    return text != key ? text : textOrValue(fallback(), key, QString());
}

QString localized(QAnyStringView key)
{
    return Bundle::mainBundle().localized(key.toString());
}

QString localizedWithDefaultStr(const QString& key, const QString& defaultText)
{
    return Bundle::mainBundle().localizedString(key, defaultText);
}

} // namespace pelmira
