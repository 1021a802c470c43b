#include "mask_editor/undo/ZKLUndoEntry.h"

#include "platform/base/RunLoop.h"
#include "platform/storage/PropertyList.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <thread>
#include <vector>

namespace pelmira {
namespace {

using Plane = std::vector<std::uint8_t>;
using Entry = std::shared_ptr<ZKLUndoEntry>;

bool drainUntil(const std::function<bool()>& done)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!done() && std::chrono::steady_clock::now() < deadline) {
        if (!drainMainQueue())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return done();
}

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

Entry entryOf(const Plane& plane)
{
    MallocBlock block(static_cast<std::uint8_t*>(std::malloc(plane.size())));
    std::copy(plane.begin(), plane.end(), block.get());
    return ZKLUndoEntry::initWithBuffer(std::move(block), static_cast<std::int32_t>(plane.size()));
}

Plane planeOf(ZKLUndoEntry& entry)
{
    std::int32_t length = -1;
    const std::uint8_t* data = entry.originalDataWithLengthPtr(&length);
    return {data, data + length};
}

void compressAndWait(const Entry& entry)
{
    entry->compress();
    passTime(5.0);
    ASSERT_TRUE(drainUntil([&] { return entry->compressedData() != nullptr; }));
    ASSERT_EQ(entry->originalData(), nullptr);
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(ZKLUndoEntry, CompressesInTheBackgroundAndDecodesToTheSameBytes)
{
    for (const Plane& plane : {samplePlane(), incompressiblePlane()}) {
        const Entry entry = entryOf(plane);
        compressAndWait(entry);
        EXPECT_GT(entry->compressedDataLen(), 0);
        EXPECT_EQ(planeOf(*entry), plane);
        EXPECT_EQ(entry->compressedData(), nullptr);
        EXPECT_EQ(entry->compressedDataLen(), 0);
        EXPECT_EQ(planeOf(*entry), plane) << "raw now";
    }
}

TEST(ZKLUndoEntry, CancelledWithinTheDelayItStaysRaw)
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
}

TEST(ZKLUndoEntry, ThePendingJobKeepsADroppedEntryAlive)
{
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
    const QTemporaryDir folder;
    const QString early = folder.filePath(QStringLiteral("early"));
    const QString late = folder.filePath(QStringLiteral("late"));
    const Plane plane = samplePlane();
    const Entry entry = entryOf(plane);
    QFile stale(early);
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly) && stale.write("what stood here before") > 0);
    stale.close();
    EXPECT_TRUE(entry->saveToURL(early));
    EXPECT_NE(entry->originalData(), nullptr) << "saving leaves the entry as it was";
    compressAndWait(entry);
    EXPECT_TRUE(entry->saveToURL(late));
    EXPECT_EQ(contentsOf(early), contentsOf(late));

    const Entry back = ZKLUndoEntry::initWithURL(early);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->originalData(), nullptr);
    EXPECT_EQ(back->originalDataLen(), 300 * 200);
    EXPECT_EQ(planeOf(*back), plane);
}

TEST(ZKLUndoEntry, AFailedWriteIsLearntOfByReadingOnly)
{
    const QString nowhere = QStringLiteral("/no/such/folder/mask.data");
    EXPECT_TRUE(entryOf(samplePlane())->saveToURL(nowhere));
    EXPECT_EQ(ZKLUndoEntry::initWithURL(nowhere), nullptr);
    const Entry empty = ZKLUndoEntry::initWithBuffer(nullptr, 5);
    EXPECT_FALSE(empty->saveToURL(nowhere));
}

TEST(ZKLUndoEntry, TheFileIsAPropertyListOfThreeKeys)
{
    const QString reader = QStandardPaths::findExecutable(QStringLiteral("plistutil"));
    if (reader.isEmpty())
        GTEST_SKIP() << "plistutil is not installed";
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("mask.data"));
    const QString json = folder.filePath(QStringLiteral("mask.json"));
    ASSERT_TRUE(entryOf(samplePlane())->saveToURL(path));
    EXPECT_TRUE(contentsOf(path).startsWith("<?xml"));

    // Through the other program's binary form and back into ours.
    ASSERT_EQ(QProcess::execute(reader, {QStringLiteral("-f"), QStringLiteral("bin"),
                                         QStringLiteral("-i"), path, QStringLiteral("-o"), json}),
              0);
    ASSERT_TRUE(contentsOf(json).startsWith("bplist00"));
    const Entry back = ZKLUndoEntry::initWithURL(json);
    ASSERT_TRUE(back);
    EXPECT_EQ(planeOf(*back), samplePlane());
    EXPECT_EQ(contentsOf(path).count("<key>"), 3);
}

class DamagedFile : public ::testing::Test {
protected:
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
        const QString path = _folder.filePath(QStringLiteral("mask.data"));
        list.writeToURL(path, true);
        return ZKLUndoEntry::initWithURL(path);
    }

    const QByteArray _stored = QByteArray("bv4-\5\0\0\0hello", 13) + QByteArray("bv4$");

private:
    QTemporaryDir _folder;
};

TEST_F(DamagedFile, WithoutAUsableLengthOrDataIsNothing)
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
}

TEST_F(DamagedFile, WithAForgedLengthGivesWhatIsThereAndZeros)
{
    const Entry tooLong = read(8, 0x7FFFFFFF, _stored);
    ASSERT_TRUE(tooLong);
    EXPECT_EQ(tooLong->compressedDataLen(), _stored.size()) << "no more than the file holds";
    EXPECT_EQ(planeOf(*tooLong), Plane({'h', 'e', 'l', 'l', 'o', 0, 0, 0}));

    const Entry tooShort = read(8, 10, _stored);
    ASSERT_TRUE(tooShort);
    EXPECT_EQ(planeOf(*tooShort), Plane({'h', 'e', 0, 0, 0, 0, 0, 0}));

    const Entry rubbish = read(4, 7, QByteArray("rubbish"));
    ASSERT_TRUE(rubbish);
    EXPECT_EQ(planeOf(*rubbish), Plane(4, 0));

    const Entry empty = read(4, 7, QByteArray());
    ASSERT_TRUE(empty);
    EXPECT_EQ(planeOf(*empty), Plane(4, 0));
}

} // namespace
} // namespace pelmira
