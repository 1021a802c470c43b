#include "platform/storage/UserDefaults.h"

#include "support/Test.h"

namespace pelmira {
namespace {

TEST(UserDefaults, ValuesKeepTheirTypesAcrossInstances)
{
    const TemporaryFolder folder;
    const QString path = folder.path("new/folder/preferences.json");
    const auto largest = std::numeric_limits<std::int64_t>::max();
    {
        UserDefaults defaults(path);
        defaults.setBool(true, u"bool"_s);
        defaults.setInteger(largest, u"integer"_s);
        defaults.setFloat(0.14F, u"float"_s);
        defaults.setFloat(0.0F, u"zero"_s);
        defaults.setString(u"1.0 \"ä\"\n"_s, u"string"_s);
        defaults.setNumbers({0.1, 0.2, 1.0}, u"numbers"_s);
        defaults.setBool(true, u"removed"_s);
        defaults.removeValueForKey(u"removed"_s);
    }
    const UserDefaults defaults(path);
    EXPECT_EQ(defaults.boolForKey(u"bool"_s), true);
    EXPECT_EQ(defaults.integerForKey(u"integer"_s), largest);
    EXPECT_EQ(defaults.floatForKey(u"float"_s), 0.14F);
    EXPECT_EQ(defaults.floatForKey(u"zero"_s), 0.0F); // which isn't absent
    EXPECT_EQ(defaults.stringForKey(u"string"_s), u"1.0 \"ä\"\n"_s);
    EXPECT_EQ(defaults.numbersForKey(u"numbers"_s), (QList<double>{0.1, 0.2, 1.0}));
    EXPECT_FALSE(defaults.boolForKey(u"removed"_s));
}

TEST(UserDefaults, AValueOfAnotherTypeCountsAsAbsentAndADamagedFileIsReplaced)
{
    const TemporaryFolder folder;
    const UserDefaults defaults(folder.write(
        "preferences.json", R"({"text": "1", "fraction": 1.5, "huge": 1e300, "mixed": [1, "2"]})"));
    EXPECT_FALSE(defaults.boolForKey(u"text"_s));
    EXPECT_FALSE(defaults.integerForKey(u"text"_s));
    EXPECT_FALSE(defaults.integerForKey(u"fraction"_s));
    EXPECT_FALSE(defaults.floatForKey(u"huge"_s));
    EXPECT_FALSE(defaults.numbersForKey(u"mixed"_s));

    const QByteArray whole = R"({"numSaves": 7, "saveAsHeif": true})";
    for (const QByteArray& damaged :
         {QByteArray(), whole.left(20), QByteArray("\0\xff\x01", 3), QByteArray("[1, 2]"),
          QByteArray(100'000, '['), QByteArray(3 << 20, ' ')}) {
        const QString path = folder.write("preferences.json", damaged);
        UserDefaults fresh(path);
        EXPECT_FALSE(fresh.integerForKey(u"numSaves"_s));
        fresh.setInteger(8, u"numSaves"_s);
        EXPECT_EQ(UserDefaults(path).integerForKey(u"numSaves"_s), 8);
    }
    EXPECT_FALSE(UserDefaults(folder.path()).integerForKey(u"numSaves"_s)); // a folder
}

TEST(UserDefaults, AnUnwritableFolderKeepsValuesForThisRun)
{
    const TemporaryFolder folder;
    const QString blocked = folder.impossibleFolder();
    UserDefaults defaults(blocked + u"/preferences.json"_s);
    int told = 0;
    defaults.setFailedBlock([&told] { ++told; });
    defaults.setInteger(2, u"numSaves"_s);
    defaults.setInteger(3, u"numSaves"_s);
    EXPECT_EQ(told, 1);
    defaults.setFailedBlock([&told] { ++told; });
    EXPECT_EQ(told, 2) << "who asks later is told too";
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey(u"numSaves"_s), 3);

    QFile::remove(folder.path("file"));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(UserDefaults(blocked + u"/preferences.json"_s).integerForKey(u"numSaves"_s), 3);
}

TEST(UserDefaults, TwoProcessesBringInOnlyTheirOwnChanges)
{
    const TemporaryFolder folder;
    UserDefaults first(folder.path("preferences.json"));
    UserDefaults second(folder.path("preferences.json"));
    first.setInteger(1, u"first"_s);
    second.setInteger(2, u"second"_s);
    const UserDefaults defaults(folder.path("preferences.json"));
    EXPECT_EQ(defaults.integerForKey(u"first"_s), 1);
    EXPECT_EQ(defaults.integerForKey(u"second"_s), 2);
    EXPECT_EQ(second.integerForKey(u"first"_s), 1);
}

TEST(UserDefaults, ThreadsMayWriteAtOnce)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path("preferences.json"));
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&defaults, t] {
            for (int i = 0; i < 25; ++i) {
                defaults.setInteger(i, QString::number(t));
                EXPECT_EQ(defaults.integerForKey(QString::number(t)), i);
                EXPECT_TRUE(defaults.synchronize());
            }
        });
    threads.clear();
    const UserDefaults read(folder.path("preferences.json"));
    for (int t = 0; t < 4; ++t)
        EXPECT_EQ(read.integerForKey(QString::number(t)), 24);
    EXPECT_EQ(folder.names().size(), 1);
}

} // namespace
} // namespace pelmira
