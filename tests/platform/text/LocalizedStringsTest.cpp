#include "platform/text/LocalizedStrings.h"

#include "support/Test.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

class LocalizedStringsTest : public testing::Test {
protected:
    using Texts = QList<std::pair<QString, QString>>;

    void writeTable(const QString& language, const Texts& texts) const
    {
        QString source = u"<!DOCTYPE TS><TS version=\"2.1\"><context><name></name>"_s;
        for (const auto& [key, text] : texts)
            source +=
                u"<message id=\"%1\"><translation>%2</translation></message>"_s.arg(key, text);
        const QString path = folder.write("table.ts", (source + u"</context></TS>"_s).toUtf8());
        const QString compiled = folder.path() + u"/pelmira_%1.qm"_s.arg(language);
        ASSERT_EQ(QProcess::execute(QStringLiteral(LRELEASE),
                                    {u"-silent"_s, u"-idbased"_s, path, u"-qm"_s, compiled}),
                  0);
    }

    Bundle bundle(const QStringList& languages) const { return {folder.path(), languages}; }

    const test::TemporaryFolder folder;
};

TEST_F(LocalizedStringsTest, TheFirstLanguageWithATableIsTakenThenEnglishThenTheKey)
{
    writeTable(u"de"_s, {{u"b"_s, u"Deutsch"_s}, {u"same"_s, u"same"_s}});
    const Bundle german = bundle({u"it-IT"_s, u"de-Latn-CH"_s, u"en"_s});
    EXPECT_EQ(german.localized(u"b"_s), u"Deutsch"_s);
    // Not looked for until now, so that it is found.
    writeTable(u"en"_s, {{u"a"_s, u"English"_s}, {u"same"_s, u"Same"_s}});
    EXPECT_EQ(german.localized(u"a"_s), u"English"_s);
    EXPECT_EQ(german.localized(u"same"_s), u"Same"_s);
    EXPECT_EQ(german.localized(u"none"_s), u"none"_s);
    EXPECT_EQ(german.localizedString(u"a"_s, u"default"_s), u"default"_s);
    EXPECT_EQ(bundle({u"pt-PT"_s}).localized(u"a"_s), u"English"_s);
}

/// Key and text of each message of the application's own table.
QMap<QString, QString> tableOf(const QString& language)
{
    static const QRegularExpression message(
        u"<message id=\"([^\"]+)\">.*?<translation>([^<]*)</translation>"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const QString source = QString::fromUtf8(test::TemporaryFolder::read(
        QStringLiteral(SOURCE_TREE "/resources/strings/pelmira_%1.ts").arg(language)));
    QMap<QString, QString> table;
    for (const QRegularExpressionMatch& match : message.globalMatch(source))
        table.insert(match.captured(1), match.captured(2));
    return table;
}

TEST(Strings, AllLanguagesHaveTheSameKeysAndPlaceholders)
{
    const QMap<QString, QString> english = tableOf(u"en"_s);
    ASSERT_GT(english.size(), 10);
    for (const QString& language : {u"de"_s, u"es"_s, u"fr"_s}) {
        const QMap<QString, QString> table = tableOf(language);
        EXPECT_EQ(table.keys(), english.keys()) << qPrintable(language);
        const Bundle bundle(u":/strings"_s, {language});
        for (const auto& [key, text] : table.asKeyValueRange()) {
            EXPECT_EQ(text.count(u"%1"_s), english.value(key).count(u"%1"_s)) << qPrintable(key);
            EXPECT_EQ(bundle.localizedString(key, QString()), text) << qPrintable(key);
        }
    }
}

/// Every literal in the program that is a key: by its first word, or because it is looked up.
TEST(Strings, EveryKeyInTheProgramHasAnEnglishText)
{
    const QMap<QString, QString> english = tableOf(u"en"_s);
    QSet<QString> screens;
    for (const QString& key : english.keys())
        screens.insert(key.section(u'.', 0, 0));
    const QRegularExpression used(
        u"\"((?:%1)(?:\\.[A-Za-z0-9]+)+)\"|(?:localized|localizedWithDefaultStr|Localized\\.text)\\([^\"()]*\"([^\"]+)\""_s
            .arg(QStringList(screens.begin(), screens.end()).join(u'|')));
    int found = 0;
    for (const QString& folder : {u"/src"_s, u"/resources"_s, u"/tour"_s}) {
        QDirIterator files(QStringLiteral(SOURCE_TREE) + folder,
                           {u"*.cpp"_s, u"*.h"_s, u"*.qml"_s, u"*.js"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString text = QString::fromUtf8(test::TemporaryFolder::read(files.next()));
            for (const QRegularExpressionMatch& match : used.globalMatch(text)) {
                const QString key = match.captured(match.lastCapturedIndex());
                EXPECT_TRUE(english.contains(key))
                    << qPrintable(key) << " in " << qPrintable(files.filePath());
                ++found;
            }
        }
    }
    EXPECT_GT(found, 0);
}

} // namespace
} // namespace pelmira
