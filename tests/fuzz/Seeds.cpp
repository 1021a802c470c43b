// Writes files to start from into one folder for each target: fuzz_seeds FOLDER

#include "platform/storage/BlockCompression.h"
#include "platform/storage/PropertyList.h"
#include "support/HeifEncoder.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

QByteArray bytesOf(const Bytes& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

Bytes encoded(const Bytes& plane)
{
    return pelmira::BlockCompression::encode(plane, plane.size() + plane.size() / 255 + 16);
}

class SeedFolder {
public:
    SeedFolder(const QString& parent, const char* name)
        : _folder(parent + QLatin1Char('/') + QLatin1String(name))
    {
        QDir().mkpath(_folder.path());
    }

    void add(const QByteArray& bytes)
    {
        QFile file(_folder.filePath(QString::number(++_count)));
        if (!bytes.isEmpty() && !(file.open(QIODevice::WriteOnly) && file.write(bytes) > 0))
            qFatal("A seed can't be written");
    }

private:
    const QDir _folder;
    int _count = 0;
};

QImage sample(bool hasAlpha)
{
    QImage image(40, 30, QImage::Format_ARGB32);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            image.setPixel(x, y, qRgba(x * 6, y * 8, 128, hasAlpha ? x * 6 : 255));
    return image;
}

QByteArray inFormat(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 80);
    return bytes;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]);

    Bytes noise(3000);
    std::iota(noise.begin(), noise.end(), std::uint8_t{7});
    const std::vector<Bytes> planes{Bytes(5000, 255), noise, Bytes(1, 0)};
    SeedFolder blocks(folder, "block");
    SeedFolder lists(folder, "propertylist");
    for (const Bytes& plane : planes) {
        const QByteArray stream = bytesOf(encoded(plane));
        blocks.add("\x88\x13" + stream);
        pelmira::PropertyList list;
        list.set("originalDataLen", static_cast<std::int64_t>(plane.size()));
        list.set("compressedDataLen", stream.size());
        list.set("compressedData", stream);
        const QString path = folder + QStringLiteral("/list");
        list.writeToURL(path, true);
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            lists.add(file.readAll());
        file.remove();
    }
    blocks.add(QByteArray("\x20\0bv4-\5\0\0\0hellobv4$", 19));
    // The binary form, by hand: one key with one number.
    lists.add(QByteArray("bplist00\xd1\1\2\x5foriginalDataLen\x10\5", 28) +
              QByteArray("\x08\x0b\x1b", 3) + QByteArray(6, '\0') + QByteArray("\1\1", 2) +
              QByteArray::fromHex("00000000000000030000000000000000000000000000001d"));

    SeedFolder images(folder, "image");
    for (const bool hasAlpha : {false, true}) {
        QImage image = sample(hasAlpha);
        for (const char* format : {"png", "jpg", "webp", "tiff"})
            images.add(inFormat(image, format));
        image.setColorSpace(QColorSpace::DisplayP3);
        images.add(inFormat(image, "png"));
        images.add(inFormat(image, "jpg"));
        pelmira::test::HeifForm form;
        form.hasAlpha = hasAlpha;
        images.add(pelmira::test::encodedHeif(image, form));
        form.iccProfile = image.colorSpace().iccProfile();
        form.orientation = 6;
        images.add(pelmira::test::encodedHeif(image, form));
    }
    return 0;
}
