// Writes what scripts/fit-edges fits the weights of "Clean edges" to:
//   bench_edge_samples FILE FOLDER
// from every second cut-out (PNG with alpha) in the folder and from painted ones: photographed by
// cameras and before backgrounds chosen by chance, cut with the wand or by hand, cut straight
// through, or with speckle. A sample is a pixel of the band in one of the two rounds, 12 floats:
// its weight, its true alpha, its depth, its measures.
#include "EdgeScenes.h"
#include "EdgeUser.h"
#include "Noise.h"

#include "refine/EdgeAlpha.h"
#include "refine/LocalColors.h"
#include "refine/MaskDepth.h"

#include <QGuiApplication>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <random>

namespace pelmira::bench {
namespace {

using Alpha = std::vector<float>; // 0 to 1, by pixel

constexpr double errorOfFlawless = 0.45; // a little more than the wand's masks usually have
constexpr std::uint32_t everyNth = 6;    // sample
constexpr float keptFrom = 0.3F;         // of a round's alpha

std::mt19937 chance(77);

double between(double low, double high)
{
    return low + (high - low) * static_cast<double>(chance()) / 4294967296.0;
}

std::uint32_t* pixelsOf(QImage& image)
{
    return reinterpret_cast<std::uint32_t*>(image.bits());
}

void setKept(std::uint32_t& pixel, bool isKept)
{
    pixel = (pixel & 0xFFFFFFU) | (isKept ? 0xFF000000U : 0U);
}

Alpha alphaOf(const Photograph& photograph)
{
    Alpha alpha(photograph.truth.size() / 4);
    for (std::size_t i = 0; i < alpha.size(); ++i)
        alpha[i] = photograph.truth[i * 4 + 3] / 255.0F;
    return alpha;
}

/// How wrong the mask is where it or the truth isn't plain.
double errorOf(const std::uint32_t* pixels, const Alpha& truth)
{
    double sum = 0;
    double count = 1;
    for (std::size_t i = 0; i < truth.size(); ++i) {
        const double error = (pixels[i] >> 31) - static_cast<double>(truth[i]);
        sum += error * error;
        count += std::fabs(error) > 0.01;
    }
    return std::max(std::sqrt(sum / count), 1e-3);
}

/// Both rounds, as refineEdges does them.
void writeSamples(std::FILE* file, QImage cutOut, const Alpha& truth, double error)
{
    static const auto window = std::make_unique<TileWindow>();
    std::uint32_t* pixels = pixelsOf(cutOut);
    const int width = cutOut.width();
    const PixelSpan span{pixels, static_cast<std::uint32_t>(width),
                         static_cast<std::uint32_t>(cutOut.height()),
                         static_cast<std::uint32_t>(cutOut.bytesPerLine())};
    std::vector<std::array<float, 3 + EdgeMeasures>> samples;
    for (int round = 0; round < 2; ++round) {
        std::vector<std::uint32_t> decided(pixels, pixels + truth.size());
        for (int top = 0; top < cutOut.height(); top += tileSide)
            for (int left = 0; left < width; left += tileSide) {
                loadMask(*window, span, left, top);
                findSoftPixels(*window);
                estimateEdge(*window, span);
                for (std::size_t i = 0; i < window->band.size(); ++i) {
                    const BandPixel pixel = window->band[i];
                    if (!window->sides[i].isKnown || !isInTile(pixel.index, 0))
                        continue;
                    const auto at =
                        static_cast<std::size_t>((window->top + windowY(pixel.index)) * width +
                                                 window->left + windowX(pixel.index));
                    setKept(decided[at], window->smooth[i] > keptFrom);
                    if (chance() % everyNth)
                        continue;
                    const FourMeasures measures =
                        measuresAt(*window, {pixel.index, pixel.index, pixel.index, pixel.index});
                    auto& sample = samples.emplace_back();
                    sample[1] = truth[at];
                    sample[2] = pixel.depth;
                    for (std::size_t m = 0; m < EdgeMeasures; ++m)
                        sample[3 + m] = measures[m][0];
                }
            }
        std::copy(decided.begin(), decided.end(), pixels);
    }
    for (auto& sample : samples) {
        sample[0] = static_cast<float>(1 / (error * error * static_cast<double>(samples.size())));
        std::fwrite(sample.data(), sizeof(float), sample.size(), file);
    }
}

/// As a steady hand erases: the true outline, or one that is off by a little here and there.
QImage cutByHand(const Photograph& photograph, const Alpha& truth)
{
    QImage image = photograph.photo;
    const double slip = chance() % 3 == 0 ? 0 : between(0.1, 0.45);
    const double scale = between(6, 40);
    const auto salt = static_cast<std::uint32_t>(chance());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const auto i = static_cast<std::size_t>(y * image.width() + x);
            const double noise = slip * (octaves(x / scale, y / scale, 2, salt) - 0.375);
            setKept(pixelsOf(image)[i], static_cast<double>(truth[i]) + noise > 0.5);
        }
    return image;
}

/// A straight or round cut that follows nothing in the photo; it is itself the truth.
QImage cutThrough(const Photograph& photograph, Alpha& truth)
{
    QImage image = photograph.photo;
    const double x0 = between(0.25, 0.75) * image.width();
    const double y0 = between(0.25, 0.75) * image.height();
    const double angle = between(0, 6.28);
    const double radius = chance() % 2 ? between(15, 120) : 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const double inside = radius > 0
                                      ? radius - std::hypot(x - x0, y - y0)
                                      : (x - x0) * std::cos(angle) + (y - y0) * std::sin(angle);
            const auto i = static_cast<std::size_t>(y * image.width() + x);
            truth[i] = static_cast<float>(std::clamp(inside + 0.5, 0.0, 1.0));
            setKept(pixelsOf(image)[i], inside >= 0);
        }
    return image;
}

/// Scatters islands of up to 6 by 6 pixels, on either side.
void addSpeckle(QImage& cutOut, const Alpha& truth)
{
    for (int count = 0; count < 70; ++count) {
        const int side = 1 + static_cast<int>(chance() % 6);
        const int left = static_cast<int>(between(12, cutOut.width() - 12 - side));
        const int top = static_cast<int>(between(12, cutOut.height() - 12 - side));
        const bool isHole = truth[static_cast<std::size_t>(top * cutOut.width() + left)] > 0.98F;
        for (int y = top; y < top + side; ++y)
            for (int x = left; x < left + side; ++x) {
                const auto i = static_cast<std::size_t>(y * cutOut.width() + x);
                if ((isHole ? truth[i] > 0.98F : truth[i] < 0.02F) && chance() % 3)
                    setKept(pixelsOf(cutOut)[i], !isHole);
            }
    }
}

void sampleSubject(std::FILE* file, const Subject& subject)
{
    for (int background = 0; background < backgrounds + 6; ++background) {
        const Camera camera{"", between(0.4, 1.1), between(1, 4),
                            static_cast<int>(between(78, 96))};
        const Photograph shot =
            photograph(subject, background, camera, static_cast<std::uint32_t>(chance() % 10000));
        Alpha truth = alphaOf(shot);
        QImage cutOut = cutWithWand(shot);
        writeSamples(file, cutOut, truth, errorOf(pixelsOf(cutOut), truth));
        cutOut = cutByHand(shot, truth);
        if (background % 2)
            addSpeckle(cutOut, truth);
        writeSamples(file, cutOut, truth, errorOfFlawless);
        cutOut = cutThrough(shot, truth);
        writeSamples(file, cutOut, truth, errorOfFlawless);
    }
}

int run(const char* path, const QString& folder)
{
    std::FILE* file = std::fopen(path, "wb");
    const std::vector<Subject> subjects = subjectsInFolder(folder);
    if (!file || subjects.empty())
        return EXIT_FAILURE;
    for (std::size_t i = 0; i < subjects.size(); i += 2)
        sampleSubject(file, subjects[i]);
    for (const Subject& subject : paintedSubjects(100))
        sampleSubject(file, subject);
    return std::fclose(file) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace pelmira::bench

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    return argc == 3 ? pelmira::bench::run(argv[1], QString::fromLocal8Bit(argv[2])) : EXIT_FAILURE;
}
