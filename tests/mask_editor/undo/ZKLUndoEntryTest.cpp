#include "mask_editor/undo/ZKLUndoEntry.h"

#include "platform/storage/PropertyList.h"
#include "support/Masks.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using test::entryOf;
using test::Plane;
using test::planeOf;
using Entry = std::shared_ptr<ZKLUndoEntry>;

/// A mask of 300 × 200 with a hole and one soft row.
Plane samplePlane()
{
    Plane plane(300 * 200, 255);
    std::fill(plane.begin() + 20000, plane.begin() + 40000, 0);
    for (std::size_t x = 0; x < 300; ++x)
        plane[x] = static_cast<std::uint8_t>(x * 7);
    return plane;
}

Plane incompressiblePlane()
{
    std::mt19937 random(3);
    Plane plane(5000);
    std::generate(plane.begin(), plane.end(), [&] { return static_cast<std::uint8_t>(random()); });
    return plane;
}

void compressAndWait(const Entry& entry)
{
    entry->compress();
    passTime(5.0);
    ASSERT_TRUE(drainUntil([&] { return entry->compressedData() != nullptr; }));
    ASSERT_EQ(entry->originalData(), nullptr);
}

TEST(ZKLUndoEntry, CancelledWithinTheDelayItStaysRawAndDroppedItLivesUntilThen)
{
    const Plane plane = samplePlane();
    const Entry undone = entryOf(plane);
    undone->compress();
    undone->cancelCompression();
    EXPECT_EQ(planeOf(*undone), plane);
    // A later entry's turn comes after the cancelled one's: the queue is serial.
    compressAndWait(entryOf(plane));
    EXPECT_NE(undone->originalData(), nullptr);
    EXPECT_EQ(undone->compressedData(), nullptr);

    Entry entry = entryOf(samplePlane());
    const std::weak_ptr<ZKLUndoEntry> watch = entry;
    entry->compress();
    entry.reset();
    EXPECT_FALSE(watch.expired());
    passTime(5.0);
    EXPECT_TRUE(drainUntil([&] { return watch.expired(); }));
}

TEST(ZKLUndoEntry, WritesTheSameFileBeforeAndAfterCompression)
{
    for (const Plane& plane : {samplePlane(), incompressiblePlane()}) {
        const TemporaryFolder folder;
        const QString early = folder.write("early", "what stood here before");
        const QString late = folder.path("late");
        const Entry entry = entryOf(plane);
        EXPECT_TRUE(entry->saveToURL(early));
        EXPECT_NE(entry->originalData(), nullptr) << "saving leaves the entry as it was";
        compressAndWait(entry);
        EXPECT_TRUE(entry->saveToURL(late));
        EXPECT_EQ(TemporaryFolder::read(early), TemporaryFolder::read(late));
        EXPECT_EQ(planeOf(*entry), plane);
        EXPECT_EQ(entry->compressedData(), nullptr) << "raw again";
        EXPECT_EQ(planeOf(*ZKLUndoEntry::initWithURL(early)), plane);
    }
}

struct DamagedFile : testing::Test {
    Entry read(std::optional<std::int64_t> originalLength,
               std::optional<std::int64_t> compressedLength, std::optional<QByteArray> data)
    {
        PropertyList list;
        if (originalLength)
            list.set("originalDataLen", *originalLength);
        if (compressedLength)
            list.set("compressedDataLen", *compressedLength);
        if (data)
            list.set("compressedData", *data);
        const QString path = _folder.path("mask.data");
        list.writeToURL(path, true);
        return ZKLUndoEntry::initWithURL(path);
    }

    const QByteArray _stored = QByteArray("bv4-\5\0\0\0hellobv4$", 17);
    const TemporaryFolder _folder;
};

TEST_F(DamagedFile, WithoutAUsableLengthOrDataIsNothingWithAForgedOneWhatIsThereAndZeros)
{
    const auto length = _stored.size();
    ASSERT_TRUE(read(5, length, _stored));
    for (const std::int64_t bad :
         {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1} << 31, (std::int64_t{1} << 32) + 5}) {
        EXPECT_FALSE(read(bad, length, _stored));
        EXPECT_FALSE(read(5, bad, _stored));
    }
    EXPECT_FALSE(read(std::nullopt, length, _stored));
    EXPECT_FALSE(read(5, std::nullopt, _stored));
    EXPECT_FALSE(read(5, length, std::nullopt));

    EXPECT_EQ(read(8, 0x7FFFFFFF, _stored)->compressedDataLen(), _stored.size());
    EXPECT_EQ(planeOf(*read(8, 0x7FFFFFFF, _stored)), Plane({'h', 'e', 'l', 'l', 'o', 0, 0, 0}));
    EXPECT_EQ(planeOf(*read(8, 10, _stored)), Plane({'h', 'e', 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(planeOf(*read(4, 7, QByteArray("rubbish"))), Plane(4, 0));
    EXPECT_EQ(planeOf(*read(4, 7, QByteArray())), Plane(4, 0));
}

} // namespace
} // namespace pelmira
