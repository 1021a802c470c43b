// Putting a finished picture together against ImageMagick's convert, from the same pixels, each in
// a process of its own that reads them from files and writes the result's pixels:
//   bench_compose [cut-out...]
// Without cut-outs, synthetic photos of 12 megapixels are cut out.
#include "Bench.h"
#include "CutOuts.h"
#include "Scenes.h"

#include "background_editor/composition/Composition.h"
#include "platform/image/Image.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtMath>

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
constexpr double canvasWidth = 360.0; // points, as on a phone

struct Case {
    const char* name;
    double aspectRatio;
    double degrees;
    double share; ///< of the canvas's width that the cut-out is wide
};
constexpr Case cases[] = {
    {"upright", 4.0 / 3.0, 0.0, 0.6},
    {"turned", 0.8, 12.5, 0.8},
    {"overhanging", 16.0 / 9.0, -30.0, 1.2},
};

QSizeF objectSize(const Case& which, QSize image)
{
    const double width = canvasWidth * which.share;
    return {width, width * image.height() / image.width()};
}

QPointF objectCenter(const Case& which)
{
    return {canvasWidth * 0.45, canvasWidth / which.aspectRatio * 0.55};
}

QImage readPixels(const char* path, int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly) || file.read(reinterpret_cast<char*>(image.bits()),
                                                     image.sizeInBytes()) != image.sizeInBytes())
        qFatal("%s can't be read", path);
    return image;
}

/// The child: bench_compose --compose CASE PHOTO WIDTH HEIGHT CUTOUT WIDTH HEIGHT TO.
int compose(char** argument)
{
    const Case& which = cases[std::atoi(argument[0])];
    const QImage photo = readPixels(argument[1], std::atoi(argument[2]), std::atoi(argument[3]));
    const QImage cutOut = readPixels(argument[4], std::atoi(argument[5]), std::atoi(argument[6]));
    Composition composition;
    composition.aspectRatio = which.aspectRatio;
    composition.canvasWidth = canvasWidth;
    composition.background = photo;
    composition.object = {cutOut, objectCenter(which), objectSize(which, cutOut.size()),
                          qDegreesToRadians(which.degrees)};
    bench::write(QFile::decodeName(argument[7]), renderComposition(composition));
    return EXIT_SUCCESS;
}

struct Picture {
    QByteArray ours;   ///< premultiplied pixels
    QByteArray theirs; ///< straight ones
    QSize size;
};

Picture keep(const QImage& image, const QString& folder, const char* name)
{
    const QString path = folder + u'/' + QLatin1String(name);
    const Picture picture{QFile::encodeName(path + QStringLiteral(".ours")),
                          QFile::encodeName(path + QStringLiteral(".theirs")), image.size()};
    bench::write(QFile::decodeName(picture.ours),
                 image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    bench::write(QFile::decodeName(picture.theirs), image.convertToFormat(QImage::Format_ARGB32));
    return picture;
}

QByteArray sizeText(QSize size)
{
    return QByteArray::number(size.width()) + "x" + QByteArray::number(size.height());
}

std::vector<QByteArray> convertCommand(const Case& which, const Picture& photo,
                                       const Picture& cutOut, const QByteArray& to)
{
    const QSize output = outputSize(which.aspectRatio);
    const double scale = output.width() / canvasWidth;
    const QSizeF size = objectSize(which, cutOut.size) * scale;
    const QPointF center = objectCenter(which) * scale;
    std::vector<QByteArray> words{"convert", "-depth", "8"};
    const auto add = [&](std::initializer_list<QByteArray> more) {
        words.insert(words.end(), more);
    };
    add({"(", "-size", sizeText(photo.size), "bgra:" + photo.theirs, "-resize",
         sizeText(output) + "^", "-gravity", "center", "-extent", sizeText(output), ")"});
    add({"-gravity", "NorthWest", "(", "-size", sizeText(cutOut.size), "bgra:" + cutOut.theirs});
    if (which.degrees == 0.0) {
        add({"-resize", sizeText(size.toSize()) + "!", "-geometry",
             QString::asprintf("%+d%+d", qRound(center.x() - size.width() / 2),
                               qRound(center.y() - size.height() / 2))
                 .toLatin1()});
    } else {
        add({"-virtual-pixel", "transparent", "-define",
             "distort:viewport=" + sizeText(output) + "+0+0", "-distort", "SRT",
             QString::asprintf("%f,%f %f %f %f,%f", cutOut.size.width() / 2.0,
                               cutOut.size.height() / 2.0, size.width() / cutOut.size.width(),
                               which.degrees, center.x(), center.y())
                 .toLatin1()});
    }
    add({")", "-composite", "bgra:" + to});
    return words;
}

/// How far apart two results lie, in the mean, in levels.
double difference(const QByteArray& a, const QByteArray& b, QSize size)
{
    const QImage left = readPixels(a.constData(), size.width(), size.height());
    const QImage right = readPixels(b.constData(), size.width(), size.height());
    double sum = 0;
    for (qsizetype i = 0; i < left.sizeInBytes(); ++i)
        sum += std::abs(int(left.constBits()[i]) - int(right.constBits()[i]));
    return sum / double(left.sizeInBytes());
}

struct Figures {
    std::vector<double> ratios;
    std::vector<double> seconds;
};

void compare(const char* name, const QImage& image, const Picture& photo, const QString& folder,
             const char* self, Figures& figures)
{
    const Picture cutOut = keep(image, folder, "cutout");
    const QByteArray ours = QFile::encodeName(folder) + "/ours.bgra";
    const QByteArray theirs = QFile::encodeName(folder) + "/peer.bgra";
    const auto number = [](int value) { return QByteArray::number(value); };
    std::printf("%s, %s\n", name, sizeText(cutOut.size).constData());
    for (int i = 0; i < int(std::size(cases)); ++i) {
        std::vector<double> times;
        std::vector<double> peerTimes;
        for (int k = 0; k < runs; ++k) {
            times.push_back(
                bench::run({self, "--compose", number(i), photo.ours, number(photo.size.width()),
                            number(photo.size.height()), cutOut.ours, number(cutOut.size.width()),
                            number(cutOut.size.height()), ours}));
            peerTimes.push_back(bench::run(convertCommand(cases[i], photo, cutOut, theirs)));
        }
        const double time = bench::median(times);
        const double peer = bench::median(peerTimes);
        std::printf("  %-12s %6.0f ms;  convert %6.0f ms;  %.2f levels apart\n", cases[i].name,
                    time, peer, difference(ours, theirs, outputSize(cases[i].aspectRatio)));
        figures.ratios.push_back(time / peer);
        figures.seconds.push_back(time / 1e3);
    }
}

double worst(const std::vector<double>& values)
{
    return *std::max_element(values.begin(), values.end());
}

QImage imageOf(const bench::Scene& scene)
{
    QImage image(int(scene.width), int(scene.height), QImage::Format_ARGB32);
    std::memcpy(image.bits(), scene.pixels.data(), scene.pixels.size() * 4);
    return image;
}

int compareAll(int count, char** cutOuts, const char* self)
{
    const QTemporaryDir folder;
    const std::vector<bench::Scene> scenes = bench::photoScenes(megapixels);
    const QImage background =
        imageOf(scenes.back()).convertToFormat(QImage::Format_RGB32).scaled(2048, 1536);
    const Picture photo = keep(background, folder.path(), "photo");
    Figures figures;
    for (int i = 0; i < count; ++i) {
        const auto read = loadImage(QFile::decodeName(cutOuts[i]));
        if (const auto* image = std::get_if<QImage>(&read))
            compare(cutOuts[i], *image, photo, folder.path(), self, figures);
    }
    if (count == 0)
        for (const bench::Scene& scene : scenes)
            compare(scene.name.c_str(), bench::cutOut(imageOf(scene)), photo, folder.path(), self,
                    figures);
    if (figures.ratios.empty())
        return EXIT_FAILURE;
    bench::printFigure("compose_vs_convert_time", worst(figures.ratios));
    bench::printFigure("compose_seconds", worst(figures.seconds));
    return EXIT_SUCCESS;
}

} // namespace
} // namespace pelmira

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 10 && std::strcmp(argv[1], "--compose") == 0)
        return pelmira::compose(argv + 2);
    return pelmira::compareAll(argc - 1, argv + 1, argv[0]);
}
