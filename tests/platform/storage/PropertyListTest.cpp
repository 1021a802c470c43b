#include "platform/storage/PropertyList.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <plist/plist.h>

namespace pelmira {
namespace {

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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

plist_t sampleDictionary(const QByteArray& data)
{
    plist_t dictionary = plist_new_dict();
    plist_dict_set_item(dictionary, "one", plist_new_uint(1));
    plist_dict_set_item(dictionary, "big", plist_new_uint(5'000'000'000));
    plist_dict_set_item(dictionary, "word", plist_new_string("passed over"));
    plist_dict_set_item(dictionary, "data",
                        plist_new_data(data.constData(), static_cast<std::uint64_t>(data.size())));
    return dictionary;
}

void expectSample(const std::optional<PropertyList>& list, const QByteArray& data)
{
    ASSERT_TRUE(list);
    EXPECT_EQ(list->integer("one"), 1);
    EXPECT_EQ(list->integer("big"), 5'000'000'000);
    EXPECT_EQ(list->data("data"), data);
    EXPECT_FALSE(list->integer("word") || list->data("word"));
    EXPECT_FALSE(list->integer("data") || list->data("one") || list->data("absent"));
}

TEST(PropertyList, WritesXmlThatOthersReadAndReadsItBack)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("list"));
    const QByteArray data = QByteArray("\0\1\2<&>\xFF", 7).repeated(1000);
    PropertyList list;
    list.set("count", 42);
    list.set("negative", -7);
    list.set("most", std::numeric_limits<std::int64_t>::max());
    list.set("data", data);
    list.set("none", QByteArray());
    for (const bool atomically : {true, false}) {
        ASSERT_TRUE(list.writeToURL(path, atomically));
        const QByteArray xml = contentsOf(path);
        EXPECT_TRUE(xml.startsWith("<?xml"));
        EXPECT_TRUE(xml.contains("<integer>42</integer>"));
        const auto back = PropertyList::dictionaryWithContentsOfURL(path);
        ASSERT_TRUE(back);
        EXPECT_EQ(back->integer("count"), 42);
        EXPECT_EQ(back->integer("negative"), -7);
        EXPECT_EQ(back->integer("most"), std::numeric_limits<std::int64_t>::max());
        EXPECT_EQ(back->data("data"), data);
        EXPECT_EQ(back->data("none"), QByteArray());
    }
    EXPECT_FALSE(list.writeToURL(folder.filePath(QStringLiteral("no/such/folder")), true));
}

TEST(PropertyList, ReadsTheBinaryForm)
{
    for (const int size : {0, 5, 14, 15, 300, 70000}) {
        const QByteArray data(size, 'd');
        plist_t dictionary = sampleDictionary(data);
        expectSample(PropertyList::fromBytes(binaryForm(dictionary)), data);
        plist_free(dictionary);
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
