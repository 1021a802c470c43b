// Writes files to start from into one folder for each target: fuzz_seeds FOLDER

#include "platform/storage/BlockCompression.h"
#include "platform/storage/PropertyList.h"
#include "support/HeifEncoder.h"
#include "support/Images.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

QByteArray packed(const Bytes& plane)
{
    const std::size_t most = plane.size() + plane.size() / 255 + 16;
    const Bytes stream = pelmira::BlockCompression::encode(plane, most);
    return {reinterpret_cast<const char*>(stream.data()), static_cast<qsizetype>(stream.size())};
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
    return pelmira::test::paintedImage(
        {40, 30}, [=](int x, int y) { return qRgba(x * 6, y * 8, 128, hasAlpha ? x * 6 : 255); },
        QImage::Format_ARGB32);
}

// A folder for each format, so that each gets its share of the inputs.
void addPhotos(const QString& folder)
{
    for (const char* format : {"jpeg", "png", "webp", "tiff"}) {
        SeedFolder photos(folder, format);
        for (const bool hasAlpha : {false, true}) {
            QImage image = sample(hasAlpha);
            photos.add(pelmira::test::encoded(image, format));
            image.setColorSpace(QColorSpace::DisplayP3);
            photos.add(pelmira::test::encoded(image, format));
        }
    }
    SeedFolder heifs(folder, "heif");
    for (const bool hasAlpha : {false, true}) {
        const QImage image = sample(hasAlpha);
        pelmira::test::HeifForm form;
        form.hasAlpha = hasAlpha;
        heifs.add(pelmira::test::encodedHeif(image, form));
        form.iccProfile = QColorSpace(QColorSpace::DisplayP3).iccProfile();
        form.orientation = 6;
        heifs.add(pelmira::test::encodedHeif(image, form));
    }
    // The orientation alone, in either order of bytes.
    const QByteArray little("II*\0\x8\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\0\0\0\0", 26);
    const QByteArray big("MM\0*\0\0\0\x8\0\1\1\x12\0\3\0\0\0\1\0\6\0\0\0\0\0\0", 26);
    SeedFolder exifs(folder, "exif");
    for (const QByteArray& block : {little, big}) {
        exifs.add(QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x1a"
                             "eXIf",
                             16) +
                  block + "CRCC");
        exifs.add(QByteArray("RIFF\x2a\0\0\0WEBPEXIF\x1a\0\0\0", 20) + block);
    }
}

void addTexts(const QString& folder)
{
    SeedFolder preferences(folder, "preferences");
    preferences.add(R"({"unitBrushSize": 0.3, "saveAsHeif": true, "numSaves": 4,
        "savedColors": [0.1, 0.2, 0.3, 1, 1, 0], "reviewRequestedVersion": "0.1.0"})");
    preferences.add(R"({"numSaves": 1e300, "savedColors": [1e39, -1, "x"]})");
    SeedFolder feeds(folder, "feed");
    feeds.add(R"({"mainApp": {"name": "A", "icon": "http://a/b.png", "appleId": 7, "stars": 4.5},
        "apps": [{"name": "B", "icon": "http://a/c.png", "appleId": "8", "campaign-code": "c"}]})");
    SeedFolder pages(folder, "help");
    for (const char* page : {"help", "help_de"}) {
        QFile file(QStringLiteral(HELP "/%1.html").arg(QLatin1String(page)));
        if (file.open(QIODevice::ReadOnly))
            pages.add(file.readAll());
    }
    pages.add("<table background='x'><tr><td><a name=wand>&nbsp;</a></table><img src=x");
    SeedFolder lines(folder, "commandline");
    lines.add("--help");
    lines.add("--\nphoto.jpg\nfile:///tmp/a%20b.png");
    lines.add("-x\n../photo.jpg\nhttp://a/b");
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
        const QByteArray stream = packed(plane);
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

    addPhotos(folder);
    addTexts(folder);
    return 0;
}
