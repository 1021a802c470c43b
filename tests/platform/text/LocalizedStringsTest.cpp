#include "platform/text/LocalizedStrings.h"

#include "platform/text/NumberFormatter.h"
#include "support/Test.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

namespace pelmira {
namespace {

/// Key and text of each message of the application's own table.
QMap<QString, QString> tableOf(const QString& language)
{
    static const QRegularExpression message(
        u"<message id=\"([^\"]+)\">.*?<translation>([^<]*)</translation>"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const QString source = QString::fromUtf8(TemporaryFolder::read(
        QStringLiteral(SOURCE_TREE "/resources/strings/pelmira_%1.ts").arg(language)));
    QMap<QString, QString> table;
    for (const QRegularExpressionMatch& match : message.globalMatch(source))
        table.insert(match.captured(1), match.captured(2));
    return table;
}

TEST(Strings, TheFirstLanguageWithATableIsTakenThenEnglishThenTheKey)
{
    const QString key = u"generic.yes"_s;
    const auto textFor = [&](const QStringList& languages) {
        return Bundle(u":/strings"_s, languages).localized(key);
    };
    EXPECT_EQ(textFor({u"it-IT"_s, u"de-Latn-CH"_s, u"en"_s}), tableOf(u"de"_s)[key]);
    EXPECT_EQ(textFor({u"pt-PT"_s}), tableOf(u"en"_s)[key]);
    const Bundle german(u":/strings"_s, {u"de"_s});
    EXPECT_EQ(german.localized(u"none"_s), u"none"_s);
    EXPECT_EQ(german.localizedString(u"none"_s, u"default"_s), u"default"_s);
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
            const QString text = QString::fromUtf8(TemporaryFolder::read(files.next()));
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

TEST(Percent, FollowsTheLocale)
{
    const auto percent = NumberFormatter::percent;
    EXPECT_EQ(percent(1.0, QLocale(QLocale::German)), u"100\u00a0%");
    EXPECT_EQ(percent(0.2, QLocale(QLocale::Turkish)), u"%20");
    // Halves go to the even neighbour; nothing shows a minus zero.
    for (const auto& [value, text] : {std::pair(0.125, u"12%"), {0.135, u"14%"}, {-0.001, u"0%"}})
        EXPECT_EQ(percent(value, QLocale::c()), text);
}

} // namespace
} // namespace pelmira
