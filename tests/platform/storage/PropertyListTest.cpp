#include "platform/storage/PropertyList.h"

#include "support/Test.h"

#include <plist/plist.h>

namespace pelmira {
namespace {

/// The library's own binary writer as the independent other side.
QByteArray binaryForm(plist_t node)
{
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(node, &bytes, &length);
    QByteArray copy(bytes, static_cast<qsizetype>(length));
    plist_to_bin_free(bytes);
    return copy;
}

TEST(PropertyList, WritesXmlThatOthersReadAndReadsItBack)
{
    const TemporaryFolder folder;
    const QString path = folder.path("list");
    const QByteArray data = QByteArray("\0\1\2<&>\xFF", 7).repeated(1000);
    PropertyList list;
    list.set("negative", -7);
    list.set("most", std::numeric_limits<std::int64_t>::max());
    list.set("data", data);
    list.set("none", QByteArray());
    for (const bool atomically : {true, false}) {
        ASSERT_TRUE(list.writeToURL(path, atomically));
        const QByteArray xml = TemporaryFolder::read(path);
        EXPECT_TRUE(xml.startsWith("<?xml"));
        EXPECT_TRUE(xml.contains("<integer>-7</integer>"));
        const auto back = PropertyList::dictionaryWithContentsOfURL(path);
        ASSERT_TRUE(back);
        EXPECT_EQ(back->integer("negative"), -7);
        EXPECT_EQ(back->integer("most"), std::numeric_limits<std::int64_t>::max());
        EXPECT_EQ(back->data("data"), data);
        EXPECT_EQ(back->data("none"), QByteArray());
    }
    EXPECT_FALSE(list.writeToURL(folder.path("no/such/folder"), true));
}

TEST(PropertyList, ReadsTheBinaryForm)
{
    for (const int size : {0, 5, 14, 15, 300, 70000}) {
        const QByteArray data(size, 'd');
        plist_t dictionary = plist_new_dict();
        plist_dict_set_item(dictionary, "big", plist_new_uint(5'000'000'000));
        plist_dict_set_item(dictionary, "word", plist_new_string("passed over"));
        plist_dict_set_item(dictionary, "data",
                            plist_new_data(data.constData(), static_cast<std::uint64_t>(size)));
        const auto list = PropertyList::fromBytes(binaryForm(dictionary));
        plist_free(dictionary);
        ASSERT_TRUE(list);
        EXPECT_EQ(list->integer("big"), 5'000'000'000);
        EXPECT_EQ(list->data("data"), data);
        EXPECT_FALSE(list->integer("word") || list->data("word") || list->integer("data") ||
                     list->data("big") || list->data("absent"));
    }
}

TEST(PropertyList, WhatIsNoDictionaryIsNothing)
{
    for (const char* text : {"", "bplist00", "<plist/>", "<?xml version=\"1.0\"?>",
                             "<plist><array/></plist>", "<plist><dict><key>a</key>", "{ a = 1; }",
                             "\xFF\xFE<", "<plist><integer>5</integer></plist>"})
        EXPECT_FALSE(PropertyList::fromBytes(text)) << text;
    EXPECT_FALSE(PropertyList::dictionaryWithContentsOfURL(QStringLiteral("/no/such/file")));
    EXPECT_FALSE(PropertyList::dictionaryWithContentsOfURL(QStringLiteral("/dev/zero")));
    EXPECT_FALSE(PropertyList::dictionaryWithContentsOfURL(QStringLiteral("/")));
}

TEST(PropertyList, DeepNestingIsRefusedBeforeItCanRecurse)
{
    const QByteArray xml = "<plist>" + QByteArray("<array>").repeated(1'000'000);
    EXPECT_FALSE(PropertyList::fromBytes(xml));
    plist_t inner = plist_new_array();
    for (int i = 0; i < 200; ++i) {
        plist_t outer = plist_new_array();
        plist_array_append_item(outer, inner);
        inner = outer;
    }
    plist_t dictionary = plist_new_dict();
    plist_dict_set_item(dictionary, "deep", inner);
    plist_dict_set_item(dictionary, "one", plist_new_uint(1));
    const auto list = PropertyList::fromBytes(binaryForm(dictionary));
    plist_free(dictionary);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->integer("one"), 1);
}

} // namespace
} // namespace pelmira
