// From a step of the dial to the finished frame that shows it, in the whole engine on a surface
// without a window: fill, transfer to the GPU, drawing. Once as the application does it, once with
// the plain fill and the whole photo sent. Argument: megapixels (16 if there is none).

#include "Bench.h"
#include "ScanlineFill.h"
#include "Scenes.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/base/RunLoop.h"
#include "platform/gl/OffscreenGLView.h"

#include <QImage>
#include <QTemporaryDir>
#include <cstdlib>
#include <optional>

namespace {

using namespace pelmira;
using namespace pelmira::bench;

constexpr std::uint8_t FirstTolerance = 51;
constexpr std::uint8_t Tolerances[] = {61, 51, 41, 44, 51};

/// A phone's screen: 390 by 844 points of three pixels.
struct App {
    App() : context(GLContext::surfaceless({})), engine(view, context, defaults)
    {
        view.setNeedsDisplay();
        view.displayIfNeeded();
    }

    void finishFrame()
    {
        while (!engine.canvas.readySurface())
            drainMainQueue();
        view.displayIfNeeded();
        glFinish();
    }

    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(QStringLiteral("preferences.json"))};
    OffscreenGLView view{QSizeF(390, 844), 3};
    std::shared_ptr<GLContext> context;
    MaskEditorEngine engine;
};

void timeStart(const Scene& scene, QPoint start, std::vector<double>& ratios)
{
    App app;
    app.engine.open(QImage(reinterpret_cast<const uchar*>(scene.pixels.data()),
                           static_cast<int>(scene.width), static_cast<int>(scene.height),
                           QImage::Format_ARGB32_Premultiplied));
    app.finishFrame();
    OGLESMappedTexture& surface = *app.engine.canvas.fgMappedTexture;
    std::optional<ScanlineFill> plain;
    surface.lockTexture();
    plain.emplace(surface.lockedPixels(), start);
    surface.unlockTexture();
    app.engine.wand.floodFillPoint(start, FirstTolerance);
    app.finishFrame();

    std::vector<double> after;
    std::vector<double> before;
    for (const std::uint8_t tolerance : Tolerances) {
        after.push_back(milliseconds([&] {
            app.engine.wand.updateFloodFillTolerance(tolerance);
            app.finishFrame();
        }));
    }
    for (const std::uint8_t tolerance : Tolerances) {
        before.push_back(milliseconds([&] {
            surface.lockTexture();
            surface.changePixels([&](const PixelSpan&) {
                plain->setTolerance(tolerance);
                return QRegion(surface.bounds());
            });
            surface.unlockTexture();
            app.view.setNeedsDisplay();
            app.finishFrame();
        }));
    }
    std::vector<double> frames;
    for (int i = 0; i < 3; ++i) {
        frames.push_back(milliseconds([&] {
            app.view.setNeedsDisplay();
            app.finishFrame();
        }));
    }
    for (std::size_t i = 0; i < std::size(Tolerances); ++i) {
        std::printf("%-8s %5d,%5d  to %3d  %7.1f %7.1f\n", scene.name.c_str(), start.x(), start.y(),
                    Tolerances[i], before[i], after[i]);
        ratios.push_back(after[i] / before[i]);
    }
    std::printf("%-8s frame alone  %26.1f\n", scene.name.c_str(), median(frames));
}

} // namespace

int main(int argc, char** argv)
{
    const double megapixels = argc > 1 ? std::atof(argv[1]) : 16;
    std::printf("%.0f megapixels, from the dial to the frame, milliseconds\n"
                "%-28s %9s %7s\n",
                megapixels, "scene, start, tolerance", "before", "after");
    std::vector<double> ratios;
    for (const Scene& scene : photoScenes(megapixels))
        timeStart(scene, scene.starts.front(), ratios);
    printFigure("wand_frame_after_vs_before_median", median(ratios));
    return EXIT_SUCCESS;
}
