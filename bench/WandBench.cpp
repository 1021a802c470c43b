// The wand's re-fill against OpenCV's floodFill, on the same filled set, checked here.

#include "Bench.h"
#include "OpenCvFill.h"
#include "Scenes.h"
#include "mask_editor/FloodFillSession.h"

#include <cstdlib>

namespace {

using namespace pelmira;
using namespace pelmira::bench;

constexpr double Megapixels = 12;
constexpr int Repetitions = 3;
// As a finger turns the dial: there, back, and far.
constexpr std::uint8_t Tolerances[] = {51, 61, 41, 20, 100};

} // namespace

int main()
{
    std::printf("12 megapixels, medians of %d, milliseconds\n", Repetitions);
    std::printf("%-10s %12s %4s %9s %8s %8s\n", "scene", "start", "tol", "filled", "ours",
                "OpenCV");
    std::vector<double> ratios;
    for (Scene& scene : photoScenes(Megapixels)) {
        std::vector<std::uint32_t> theirs = scene.pixels;
        const std::uint32_t bytesPerRow = scene.width * 4;
        const PixelSpan theirSpan{theirs.data(), scene.width, scene.height, bytesPerRow};
        for (const QPoint start : scene.starts) {
            FloodFillSession session(scene.pixels.data(), scene.width, scene.height, bytesPerRow,
                                     start);
            OpenCvFill openCv = OpenCvFill::onColors(theirSpan, start);
            for (const std::uint8_t tolerance : Tolerances) {
                std::vector<double> ourTimes;
                std::vector<double> theirTimes;
                for (int i = 0; i < Repetitions; ++i) {
                    ourTimes.push_back(milliseconds([&] { session.setTolerance(tolerance); }));
                    theirTimes.push_back(milliseconds([&] { openCv.setTolerance(tolerance); }));
                }
                if (theirs != scene.pixels) {
                    std::printf("the two fills differ\n");
                    return EXIT_FAILURE;
                }
                const auto filled = std::count_if(theirs.begin(), theirs.end(),
                                                  [](auto pixel) { return pixel >> 24 == 0; });
                std::printf("%-10s %5d, %5d %4d %8.1f%% %8.1f %8.1f\n", scene.name.c_str(),
                            start.x(), start.y(), tolerance,
                            100.0 * double(filled) / double(theirs.size()), median(ourTimes),
                            median(theirTimes));
                ratios.push_back(median(ourTimes) / median(theirTimes));
            }
            session.setTolerance(0);
            openCv.setTolerance(0);
        }
    }
    printFigure("wand_refill_vs_opencv_median", median(ratios));
    return EXIT_SUCCESS;
}
