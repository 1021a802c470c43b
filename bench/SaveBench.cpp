// Encoding a finished cut-out against ImageMagick's convert, on the same pixels, each in a process
// of its own that reads them from a file and writes the picture:
//   bench_save [photo...]
// Without photos, synthetic ones of 12 megapixels are cut out.
#include "Bench.h"
#include "CutOuts.h"
#include "Scenes.h"

#include "export/SaveImageFormatter.h"
#include "platform/encode/HeifEncoder.h"
#include "platform/encode/JpegEncoder.h"
#include "platform/encode/PngEncoder.h"
#include "platform/image/Image.h"

#include <QColor>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <variant>
#include <vector>

namespace pelmira {
namespace {

constexpr double megapixels = 12.0;
constexpr int runs = 3;

/// Of this process, since its program was started. (What wait4 tells counts its parent's, too.)
QByteArray peakKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmHWM:"))
                return line.mid(6).simplified().split(' ').value(0);
    return "0";
}

/// The child: bench_save --encode FORMAT WIDTH HEIGHT FROM TO, with premultiplied pixels.
int encode(char** argument)
{
    const QString format = QString::fromLatin1(argument[0]);
    QFile from(QFile::decodeName(argument[3]));
    QImage image(std::atoi(argument[1]), std::atoi(argument[2]),
                 QImage::Format_ARGB32_Premultiplied);
    if (!from.open(QIODevice::ReadOnly) || from.read(reinterpret_cast<char*>(image.bits()),
                                                     image.sizeInBytes()) != image.sizeInBytes())
        return EXIT_FAILURE;
    const QByteArray bytes = format == QLatin1String("png") ? pngRepresentation(image)
                             : format == QLatin1String("heic")
                                 ? heifRepresentation(image)
                                 : jpegRepresentation(imageWithBGColor(image, Qt::white), 0.9);
    QFile to(QFile::decodeName(argument[4]));
    const bool isWritten = to.open(QIODevice::WriteOnly) && to.write(bytes) == bytes.size();
    QFile peak(to.fileName() + QStringLiteral(".peak"));
    return isWritten && !bytes.isEmpty() && peak.open(QIODevice::WriteOnly) &&
                   peak.write(peakKilobytes()) > 0
               ? EXIT_SUCCESS
               : EXIT_FAILURE;
}

struct Figures {
    std::vector<double> pngTime;
    std::vector<double> pngBytes;
    std::vector<double> heifSecondsPerMegapixel;
    std::vector<double> peak;
    std::vector<double> heifPeak; ///< mostly the codec's own
};

void compare(const char* name, const QImage& image, const QString& folder, const char* self,
             Figures& figures)
{
    const QByteArray ours = QFile::encodeName(folder + QStringLiteral("/premultiplied.bgra"));
    const QByteArray theirs = QFile::encodeName(folder + QStringLiteral("/straight.bgra"));
    bench::write(QFile::decodeName(ours), image);
    // What convert gets are the very pixels that our files hold.
    bench::write(QFile::decodeName(theirs), image.convertToFormat(QImage::Format_ARGB32));
    const QByteArray width = QByteArray::number(image.width());
    const QByteArray height = QByteArray::number(image.height());
    const double pixels = double(image.width()) * image.height();
    std::printf("%s, %.1f megapixels\n", name, pixels / 1e6);
    for (const QByteArray& format : {QByteArray("png"), QByteArray("jpg"), QByteArray("heic")}) {
        const QByteArray out = QFile::encodeName(folder) + "/ours." + format;
        const QByteArray peer = QFile::encodeName(folder) + "/peer." + format;
        std::vector<QByteArray> convert{"convert", "-size", width + "x" + height,
                                        "-depth",  "8",     "bgra:" + theirs};
        if (format == "jpg")
            convert.insert(convert.end(), {"-background", "white", "-flatten", "-quality", "90",
                                           "-sampling-factor", "1x1"});
        convert.push_back(peer);
        std::vector<double> ourTimes;
        std::vector<double> ratios;
        std::vector<double> peerTimes;
        double peak = 0;
        for (int i = 0; i < (format == "heic" ? 1 : runs); ++i) {
            ourTimes.push_back(bench::run({self, "--encode", format, width, height, ours, out}));
            peerTimes.push_back(bench::run(convert));
            ratios.push_back(ourTimes.back() / peerTimes.back());
            QFile told(QFile::decodeName(out + ".peak"));
            if (told.open(QIODevice::ReadOnly))
                peak = std::max(peak, told.readAll().toDouble() * 1024.0 / (pixels * 4.0));
        }
        const double bytes = double(QFileInfo(QFile::decodeName(out)).size());
        const double peerBytes = double(QFileInfo(QFile::decodeName(peer)).size());
        std::printf("  %-5s %6.0f ms %9.0f bytes, peak %.2f times the pixels;"
                    "  convert %6.0f ms %9.0f bytes\n",
                    format.constData(), bench::median(ourTimes), bytes, peak,
                    bench::median(peerTimes), peerBytes);
        (format == "heic" ? figures.heifPeak : figures.peak).push_back(peak);
        if (format == "png") {
            figures.pngTime.push_back(bench::median(ratios));
            figures.pngBytes.push_back(bytes / peerBytes);
        } else if (format == "heic") {
            figures.heifSecondsPerMegapixel.push_back(bench::median(ourTimes) * 1e3 / pixels);
        }
    }
}

double worst(const std::vector<double>& values)
{
    return *std::max_element(values.begin(), values.end());
}

int compareAll(int count, char** photos, const char* self)
{
    const QTemporaryDir folder;
    Figures figures;
    for (int i = 0; i < count; ++i) {
        const auto photo = loadImage(QFile::decodeName(photos[i]));
        if (const auto* image = std::get_if<QImage>(&photo))
            compare(photos[i], bench::cutOut(*image), folder.path(), self, figures);
    }
    if (count == 0) {
        for (const bench::Scene& scene : bench::photoScenes(megapixels)) {
            QImage image(int(scene.width), int(scene.height), QImage::Format_ARGB32);
            std::memcpy(image.bits(), scene.pixels.data(), scene.pixels.size() * 4);
            compare(scene.name.c_str(), bench::cutOut(image), folder.path(), self, figures);
        }
    }
    if (figures.peak.empty())
        return EXIT_FAILURE;
    bench::printFigure("save_heif_peak_memory_vs_raw", worst(figures.heifPeak));
    bench::printFigure("save_png_vs_convert_time", worst(figures.pngTime));
    bench::printFigure("save_png_vs_convert_bytes", worst(figures.pngBytes));
    bench::printFigure("save_heif_seconds_per_megapixel", worst(figures.heifSecondsPerMegapixel));
    bench::printFigure("save_peak_memory_vs_raw", worst(figures.peak));
    return EXIT_SUCCESS;
}

} // namespace
} // namespace pelmira

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 7 && std::strcmp(argv[1], "--encode") == 0)
        return pelmira::encode(argv + 2);
    return pelmira::compareAll(argc - 1, argv + 1, argv[0]);
}
