// What "Clean edges" makes of a wand's mask, beside the mask itself and what others do with one:
//   bench_edges [FOLDER [CROPS]]
// over the cut-outs (PNG with alpha) in the folder, else over painted ones. Each is put before
// three backgrounds, photographed by three cameras, cut out with the wand and refined. The error is
// the root mean square of the difference from the true cut-out, both laid on black, white and
// green, within 8 pixels of the true edge; it is told relative to the raw mask's. The bound is the
// truth wherever "Clean edges" may change a pixel, and the raw mask elsewhere. Into the folder
// CROPS go pieces of raw and refined cut-outs on the three grounds, four times as large.
#include "Bench.h"
#include "EdgeScenes.h"
#include "EdgeUser.h"
#include "GuidedFilter.h"

#include "platform/base/ParallelJobs.h"
#include "refine/EdgeRefiner.h"
#include "refine/RefineEdges.h"

#include <QColor>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>

#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>

namespace pelmira::bench {
namespace {

constexpr int bandRadius = 8;
constexpr int usualRadius = 114; // of circles with 40,000 pixels of boundary at 12 megapixels
constexpr std::array<Camera, 3> cameras = {
    {{"soft", 0.9, 2.0, 92}, {"sharp", 0.5, 2.0, 92}, {"coarse", 0.6, 3.0, 80}}};
constexpr std::array<const char*, 5> ways = {"ours", "guided", "feather", "perfect", "bound"};
const std::array<QColor, 3> grounds = {QColor(0, 0, 0), QColor(255, 255, 255), QColor(0, 255, 0)};

PixelSpan spanOf(QImage& image)
{
    return {reinterpret_cast<std::uint32_t*>(image.bits()),
            static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()),
            static_cast<std::uint32_t>(image.bytesPerLine())};
}

const std::uint32_t* pixelsOf(const QImage& image)
{
    return reinterpret_cast<const std::uint32_t*>(image.constBits());
}

/// The pixels within the radius of a place where the set ends.
std::vector<bool> nearEdge(const std::vector<bool>& set, int width, int height)
{
    std::vector<bool> near(set.size());
    const auto at = [width](int x, int y) { return static_cast<std::size_t>(y * width + x); };
    const auto markAround = [&](int px, int py) {
        for (int y = std::max(py - bandRadius, 0); y < std::min(py + bandRadius + 1, height); ++y)
            for (int x = std::max(px - bandRadius, 0); x < std::min(px + bandRadius + 1, width);
                 ++x)
                if ((x - px) * (x - px) + (y - py) * (y - py) <= bandRadius * bandRadius)
                    near[at(x, y)] = true;
    };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if ((x + 1 < width && set[at(x, y)] != set[at(x + 1, y)]) ||
                (y + 1 < height && set[at(x, y)] != set[at(x, y + 1)]))
                markAround(x, y);
    return near;
}

std::vector<bool> trulyInside(const Photograph& photograph)
{
    std::vector<bool> inside(photograph.truth.size() / 4);
    for (std::size_t i = 0; i < inside.size(); ++i)
        inside[i] = photograph.truth[i * 4 + 3] >= 127.5F;
    return inside;
}

double errorOf(const QImage& cutOut, const Photograph& photograph, const std::vector<bool>& band)
{
    const std::uint32_t* pixels = pixelsOf(cutOut);
    double sum = 0;
    double count = 0;
    for (std::size_t i = 0; i < band.size(); ++i) {
        if (!band[i])
            continue;
        const double alpha = (pixels[i] >> 24) / 255.0;
        const double trueAlpha = photograph.truth[i * 4 + 3] / 255.0;
        for (const QColor& ground : grounds) {
            const std::array<int, 3> behind = {ground.blue(), ground.green(), ground.red()};
            for (std::size_t c = 0; c < 3; ++c) {
                const double ours = alpha * (pixels[i] >> (8 * c) & 255) + (1 - alpha) * behind[c];
                const double truth = photograph.truth[i * 4 + c] + (1 - trueAlpha) * behind[c];
                sum += (ours - truth) * (ours - truth);
                ++count;
            }
        }
    }
    return std::sqrt(sum / count);
}

QImage withPerfectMask(const Photograph& photograph)
{
    QImage image = photograph.photo;
    std::uint32_t* pixels = spanOf(image).pixels;
    const std::vector<bool> inside = trulyInside(photograph);
    for (std::size_t i = 0; i < inside.size(); ++i)
        pixels[i] = (pixels[i] & 0xFFFFFFU) | (inside[i] ? 0xFF000000U : 0U);
    return image;
}

std::vector<bool> keptBy(const QImage& cutOut)
{
    const std::uint32_t* pixels = pixelsOf(cutOut);
    std::vector<bool> kept(static_cast<std::size_t>(cutOut.width() * cutOut.height()));
    for (std::size_t i = 0; i < kept.size(); ++i)
        kept[i] = pixels[i] >> 31;
    return kept;
}

/// What nobody could do better who changes nothing further than 8 pixels from the mask's boundary.
QImage withTruthNearMask(const QImage& raw, const Photograph& photograph)
{
    QImage image = raw.copy();
    std::uint32_t* pixels = spanOf(image).pixels;
    const std::vector<bool> near = nearEdge(keptBy(raw), raw.width(), raw.height());
    for (std::size_t i = 0; i < near.size(); ++i) {
        if (!near[i])
            continue;
        const float* truth = photograph.truth.data() + i * 4;
        std::uint32_t pixel = 0;
        for (std::size_t c = 0; c < 4; ++c) {
            const float straight =
                c == 3 || truth[3] <= 0 ? truth[c] : truth[c] * 255.0F / truth[3];
            pixel |= static_cast<std::uint32_t>(std::lround(std::min(straight, 255.0F))) << (8 * c);
        }
        pixels[i] = pixel;
    }
    return image;
}

std::size_t farBytesChanged(const QImage& before, const QImage& after)
{
    const std::uint32_t* a = pixelsOf(before);
    const std::uint32_t* b = pixelsOf(after);
    const std::vector<bool> near = nearEdge(keptBy(before), before.width(), before.height());
    std::size_t count = 0;
    for (std::size_t i = 0; i < near.size(); ++i)
        for (int c = 0; c < 4 && !near[i]; ++c)
            count += ((a[i] ^ b[i]) >> (8 * c) & 255) != 0;
    return count;
}

/// Raw above refined, on each ground, where the two differ most.
void writeCrops(const QString& path, const QImage& raw, const QImage& clean)
{
    constexpr int side = 80;
    constexpr int scale = 4;
    QPoint best;
    std::int64_t most = -1;
    for (int top = 0; top + side <= raw.height(); top += side / 2)
        for (int left = 0; left + side <= raw.width(); left += side / 2) {
            std::int64_t sum = 0;
            for (int y = top; y < top + side; ++y)
                for (int x = left; x < left + side; ++x)
                    sum += raw.pixel(x, y) != clean.pixel(x, y);
            if (sum > most) {
                most = sum;
                best = {left, top};
            }
        }
    QImage sheet(3 * side * scale, 2 * side * scale, QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (int row = 0; row < 2; ++row)
        for (int ground = 0; ground < 3; ++ground) {
            QImage piece(side, side, QImage::Format_RGB32);
            piece.fill(grounds[static_cast<std::size_t>(ground)]);
            QPainter(&piece).drawImage(QPoint(), row == 0 ? raw : clean,
                                       QRect(best, QSize(side, side)));
            painter.drawImage(
                QRect(ground * side * scale, row * side * scale, side * scale, side * scale),
                piece);
        }
    painter.end();
    sheet.save(path);
}

struct Figures {
    std::array<std::vector<double>, ways.size()> errors;
    std::size_t farBytes = 0;
};

void measure(const Subject& subject, std::uint32_t seed, const Camera& camera, const QString& crops,
             Figures& figures)
{
    for (int background = 0; background < backgrounds; ++background) {
        const Photograph shot = photograph(subject, background, camera, seed);
        const QImage raw = cutWithWand(shot);
        QImage clean = raw;
        refineEdges(spanOf(clean));
        figures.farBytes += farBytesChanged(raw, clean);
        const std::vector<bool> band = nearEdge(trulyInside(shot), shot.width(), shot.height());
        const double base = errorOf(raw, shot, band);
        const std::array<QImage, ways.size()> results = {clean, guidedFilter(raw, 4, 0.001),
                                                         feathered(raw, 0.7), withPerfectMask(shot),
                                                         withTruthNearMask(raw, shot)};
        std::printf("%-7s %-30s %6.1f", camera.name, qPrintable(shot.name), base);
        for (std::size_t i = 0; i < ways.size(); ++i) {
            figures.errors[i].push_back(errorOf(results[i], shot, band) / base);
            std::printf(" %8.2f", figures.errors[i].back());
        }
        std::printf("\n");
        if (!crops.isEmpty())
            writeCrops(QStringLiteral("%1/%2-%3.png")
                           .arg(crops, QString(shot.name).replace(u'/', u'-'),
                                QString::fromLatin1(camera.name)),
                       raw, clean);
    }
}

/// A photo of 12 megapixels, cut out along circles.
QImage largeCutOut(int radius)
{
    QImage image(4096, 3072, QImage::Format_ARGB32);
    const PixelSpan pixels = spanOf(image);
    const int across = 4 * radius;
    for (std::uint32_t y = 0; y < pixels.height; ++y)
        for (std::uint32_t x = 0; x < pixels.width; ++x) {
            const double dx = static_cast<int>(x) % across - across / 2.0;
            const double dy = static_cast<int>(y) % across - across / 2.0;
            const double alpha = std::clamp(radius - std::hypot(dx, dy) + 0.5, 0.0, 1.0);
            const std::uint32_t grain = (x * 0x9E3779B1U ^ y * 0x85EBCA77U) >> 29;
            const auto level = static_cast<std::uint32_t>(60 + 130 * alpha) + grain;
            pixels.row(y)[x] =
                (alpha > 0.5 ? 0xFF000000U : 0U) | level << 16 | (level / 2) << 8 | 90U;
        }
    return image;
}

std::size_t boundaryPixels(const QImage& image)
{
    const std::uint32_t* pixels = pixelsOf(image);
    const std::size_t width = static_cast<std::size_t>(image.width());
    std::size_t count = 0;
    for (std::size_t i = width; i + width < width * static_cast<std::size_t>(image.height()); ++i)
        count += pixels[i] >> 31 && !(pixels[i - 1] >> 31 && pixels[i + 1] >> 31 &&
                                      pixels[i - width] >> 31 && pixels[i + width] >> 31);
    return count;
}

/// Milliseconds of processor time, which other work on the machine doesn't lengthen.
double processorTimeOf(const QImage& image, const EdgeRefiner::Workers& workers)
{
    std::vector<double> times;
    for (int i = 0; i < 7; ++i) {
        QImage clean = image.copy();
        const std::clock_t start = std::clock();
        EdgeRefiner(spanOf(clean), {}, workers).run();
        times.push_back(1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return median(times);
}

double timeOf(const QImage& image)
{
    std::vector<double> times;
    for (int i = 0; i < 7; ++i) {
        QImage clean = image.copy();
        times.push_back(milliseconds([&] { refineEdges(spanOf(clean)); }));
    }
    return median(times);
}

/// The child: what its refining adds to the memory of a process that holds a cut-out, in kilobytes.
int measureMemory(int radius)
{
    const auto peak = [] {
        QFile status(QStringLiteral("/proc/self/status"));
        if (status.open(QIODevice::ReadOnly))
            for (const QByteArray& line : status.readAll().split('\n'))
                if (line.startsWith("VmHWM:"))
                    return line.mid(6).simplified().split(' ').value(0).toInt();
        return 0;
    };
    QImage image = largeCutOut(radius);
    const int before = peak();
    refineEdges(spanOf(image));
    std::printf("%d\n", peak() - before);
    return EXIT_SUCCESS;
}

double extraMegabytes(int radius)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--memory"), QString::number(radius)});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().trimmed().toDouble() / 1024;
}

double measureLarge()
{
    const QImage image = largeCutOut(usualRadius);
    const double one = processorTimeOf(image, [](std::size_t count, const auto& job) {
        for (std::size_t i = 0; i < count; ++i)
            job(i, 0U);
    });
    const double all = timeOf(image);
    std::printf("12 megapixels, %zu pixels of boundary: %.0f ms on one thread, %.0f ms on %u; "
                "%.1f MB more, %.1f MB where a boundary is everywhere\n",
                boundaryPixels(image), one, all, parallelWorkers(), extraMegabytes(usualRadius),
                extraMegabytes(2));
    return one;
}

int run(const QString& folder, const QString& crops)
{
    const std::vector<Subject> subjects =
        folder.isEmpty() ? paintedSubjects() : subjectsInFolder(folder);
    if (subjects.empty()) {
        std::fprintf(stderr, "%s holds no PNG with alpha\n", qPrintable(folder));
        return EXIT_FAILURE;
    }
    std::printf("%-7s %-30s %6s", "camera", "scene", "raw");
    for (const char* way : ways)
        std::printf(" %8s", way);
    std::printf("\n");
    Figures figures;
    for (const Camera& camera : cameras) {
        Figures here;
        for (std::size_t i = 0; i < subjects.size(); ++i)
            measure(subjects[i], static_cast<std::uint32_t>(i * 3 + 1), camera, crops, here);
        for (std::size_t i = 0; i < ways.size(); ++i) {
            const std::vector<double>& errors = here.errors[i];
            std::printf("%-7s %-8s median %.3f worst %.3f\n", camera.name, ways[i], median(errors),
                        *std::max_element(errors.begin(), errors.end()));
            figures.errors[i].insert(figures.errors[i].end(), errors.begin(), errors.end());
        }
        figures.farBytes += here.farBytes;
    }
    const double time = measureLarge();
    const auto& [ours, guided, feather, perfect, bound] = figures.errors;
    printFigure("edges_guided_vs_raw_median", median(guided));
    printFigure("edges_guided_vs_raw_worst", *std::max_element(guided.begin(), guided.end()));
    printFigure("edges_bound_vs_raw_median", median(bound));
    printFigure("edges_error_vs_raw_median", median(ours));
    printFigure("edges_error_vs_raw_worst", *std::max_element(ours.begin(), ours.end()));
    printFigure("edges_ms_12mp", time);
    printFigure("edges_far_bytes_changed", static_cast<double>(figures.farBytes));
    return EXIT_SUCCESS;
}

} // namespace
} // namespace pelmira::bench

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const auto argument = [&](int i) { return i < argc ? QFile::decodeName(argv[i]) : QString(); };
    if (argument(1) == QLatin1String("--memory"))
        return pelmira::bench::measureMemory(argument(2).toInt());
    if (argument(1) == QLatin1String("--large"))
        return pelmira::bench::measureLarge() > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    return pelmira::bench::run(argument(1), argument(2));
}
