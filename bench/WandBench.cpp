// The wand against its plain form, OpenCV's floodFill in two forms, and the bare memory traffic
// of one pass over all alpha bytes. Every fill's result is checked against the plain form's.
// Arguments: sizes in megapixels (2, 12 and 16 if there are none).

#include "Bench.h"
#include "OpenCvFill.h"
#include "ScanlineFill.h"
#include "Scenes.h"
#include "mask_editor/wand/FloodFillSession.h"
#include "platform/pixels/AlphaPlane.h"

#include <array>
#include <bit>
#include <cstdlib>
#include <memory>
#include <optional>

namespace {

using namespace pelmira;
using namespace pelmira::bench;

constexpr int Repetitions = 3;
constexpr std::uint8_t FirstTolerance = 51;

struct Move {
    std::uint8_t tolerance;
    bool isStep; // of a dial that is being turned; the others are jumps
};
constexpr Move Moves[] = {{61, true}, {51, true}, {41, true},  {31, true},   {41, true}, {44, true},
                          {49, true}, {51, true}, {20, false}, {100, false}, {51, false}};

using Pixels = std::vector<std::uint32_t>;
using Times = std::vector<double>;

/// One way to fill, on pixels of its own.
struct Contender {
    Pixels pixels;
    PixelSpan span;

    Contender(const Scene& scene)
        : pixels(scene.pixels), span{pixels.data(), scene.width, scene.height, scene.width * 4}
    {
    }
};

struct Ratios {
    Times stepToOpenCv;
    Times moveToOpenCv; // steps and jumps
    Times stepToPlainPass;
    Times firstFill;
    Times worstCaseFirstFill;

    void add(const Ratios& other)
    {
        const auto append = [](Times& to, const Times& from) {
            to.insert(to.end(), from.begin(), from.end());
        };
        append(stepToOpenCv, other.stepToOpenCv);
        append(moveToOpenCv, other.moveToOpenCv);
        append(stepToPlainPass, other.stepToPlainPass);
        append(firstFill, other.firstFill);
        append(worstCaseFirstFill, other.worstCaseFirstFill);
    }
};

void requireEqual(const Contender& a, const Contender& b, const char* what)
{
    if (a.pixels == b.pixels)
        return;
    std::printf("%s gives another result than the plain form\n", what);
    std::exit(EXIT_FAILURE);
}

double percent(std::size_t part, std::size_t whole)
{
    return 100.0 * static_cast<double>(part) / static_cast<double>(whole);
}

std::size_t countFilled(const Pixels& pixels)
{
    return static_cast<std::size_t>(
        std::count_if(pixels.begin(), pixels.end(), [](auto pixel) { return pixel >> 24 == 0; }));
}

/// Tap and first fill, from memory that is as fresh for the one as for the other.
void timeFirstFill(const Scene& scene, QPoint start, Times& ratios)
{
    Times ours;
    Times taps;
    Times plain;
    std::size_t filled = 0;
    for (int i = 0; i < Repetitions; ++i) {
        Contender us(scene);
        Contender oracle(scene);
        std::unique_ptr<FloodFillSession> session;
        std::unique_ptr<ScanlineFill> other;
        taps.push_back(milliseconds([&] {
            session = std::make_unique<FloodFillSession>(us.span.pixels, scene.width, scene.height,
                                                         us.span.bytesPerRow, start);
        }));
        ours.push_back(taps.back() + milliseconds([&] { session->setTolerance(FirstTolerance); }));
        plain.push_back(milliseconds([&] {
            other = std::make_unique<ScanlineFill>(oracle.span, start);
            other->setTolerance(FirstTolerance);
        }));
        requireEqual(us, oracle, "the first fill");
        filled = countFilled(us.pixels);
    }
    std::printf("  %-11s %5d,%5d  %5.1f%%  tap %5.1f, tap and fill %6.1f, plain form %6.1f, ratio "
                "%.3f\n",
                scene.name.c_str(), start.x(), start.y(), percent(filled, scene.pixels.size()),
                median(taps), median(ours), median(plain), median(ours) / median(plain));
    ratios.push_back(median(ours) / median(plain));
}

/// The dial turned and thrown about; each move by every contender.
void timeMoves(const Scene& scene, QPoint start, Ratios& ratios)
{
    constexpr std::size_t Count = std::size(Moves);
    std::array<Times, Count> ours;
    std::array<Times, Count> plain;
    std::array<Times, Count> colors;
    std::array<Times, Count> plane;
    std::array<Times, Count> pass;
    std::array<std::size_t, Count> written{};

    Contender us(scene);
    Contender oracle(scene);
    Contender cvColors(scene);
    Contender cvPlane(scene);
    const std::vector<std::uint8_t> opaque(scene.pixels.size(), 255);
    std::vector<std::uint8_t> distances(scene.pixels.size());
    const std::uint32_t color = scene.pixels[static_cast<std::size_t>(start.y()) * scene.width +
                                             static_cast<std::size_t>(start.x())];
    colorDistances(us.span, std::bit_cast<StoredColor>(color), distances.data());
    FloodFillSession session(us.span.pixels, scene.width, scene.height, us.span.bytesPerRow, start);
    ScanlineFill other(oracle.span, start);
    OpenCvFill onColors = OpenCvFill::onColors(cvColors.span, start);
    OpenCvFill onPlane = OpenCvFill::onDistances(cvPlane.span, start, distances.data());
    session.setTolerance(FirstTolerance);
    other.setTolerance(FirstTolerance);

    for (int i = 0; i < Repetitions; ++i) {
        for (std::size_t m = 0; m < Count; ++m) {
            const std::uint8_t tolerance = Moves[m].tolerance;
            const Pixels before = us.pixels;
            ours[m].push_back(milliseconds([&] { session.setTolerance(tolerance); }));
            plain[m].push_back(milliseconds([&] { other.setTolerance(tolerance); }));
            colors[m].push_back(milliseconds([&] { onColors.setTolerance(tolerance); }));
            plane[m].push_back(milliseconds([&] { onPlane.setTolerance(tolerance); }));
            requireEqual(us, oracle, "a move of the dial");
            requireEqual(cvColors, oracle, "OpenCV on colours");
            requireEqual(cvPlane, oracle, "OpenCV on distances");
            pass[m].push_back(
                milliseconds([&] { restoreAlphaPlane(cvColors.span, opaque.data()); }));
            written[m] = 0;
            for (std::size_t p = 0; p < before.size(); ++p)
                written[m] += before[p] != us.pixels[p];
        }
    }
    std::uint8_t from = FirstTolerance;
    for (std::size_t m = 0; m < Count; ++m) {
        const double our = median(ours[m]);
        const double best = std::min(median(colors[m]), median(plane[m]));
        std::printf("  %-11s %5d,%5d  %3d to %3d  %5.1f%%  %6.2f %7.1f %7.1f %7.1f %6.1f  %.3f\n",
                    scene.name.c_str(), start.x(), start.y(), from, Moves[m].tolerance,
                    percent(written[m], scene.pixels.size()), our, median(plain[m]),
                    median(colors[m]), median(plane[m]), median(pass[m]), our / best);
        ratios.moveToOpenCv.push_back(our / best);
        if (Moves[m].isStep) {
            ratios.stepToOpenCv.push_back(our / best);
            ratios.stepToPlainPass.push_back(our / median(pass[m]));
        }
        from = Moves[m].tolerance;
    }
}

Ratios timeSize(double megapixels)
{
    Ratios ratios;
    std::printf("\n%.0f megapixels, medians of %d, milliseconds\n", megapixels, Repetitions);
    const std::vector<Scene> scenes = photoScenes(megapixels);
    std::printf(" tap and first fill, tolerance %d (scene, start, filled)\n", FirstTolerance);
    for (const Scene& scene : scenes)
        for (const QPoint start : scene.starts)
            timeFirstFill(scene, start, ratios.firstFill);
    for (const Scene& maze : mazes(megapixels))
        for (const QPoint start : maze.starts)
            timeFirstFill(maze, start, ratios.worstCaseFirstFill);

    std::printf(" moves of the dial (scene, start, tolerances, changed)\n"
                "  %48s %7s %7s %7s %6s  %s\n",
                "ours", "plain", "cv bgr", "cv dist", "pass", "to the better cv");
    for (const Scene& scene : scenes)
        for (const QPoint start : scene.starts)
            timeMoves(scene, start, ratios);
    std::printf(" medians: step to OpenCV %.3f, to a plain pass %.3f, first fill to plain form "
                "%.3f\n",
                median(ratios.stepToOpenCv), median(ratios.stepToPlainPass),
                median(ratios.firstFill));
    return ratios;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<double> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::atof(argv[i]));
    if (sizes.empty())
        sizes = {2, 12, 16};
    Ratios all;
    for (const double megapixels : sizes)
        all.add(timeSize(megapixels));
    const auto largest = [](const Times& times) {
        return *std::max_element(times.begin(), times.end());
    };
    std::printf("\n");
    printFigure("wand_step_vs_opencv_median", median(all.stepToOpenCv));
    printFigure("wand_step_vs_opencv_worst", largest(all.moveToOpenCv));
    printFigure("wand_step_vs_plain_pass_median", median(all.stepToPlainPass));
    printFigure("wand_first_fill_vs_oracle_median", median(all.firstFill));
    printFigure("wand_first_fill_vs_oracle_worst",
                std::max(largest(all.firstFill), largest(all.worstCaseFirstFill)));
    return EXIT_SUCCESS;
}
