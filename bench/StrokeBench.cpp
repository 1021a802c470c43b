// What painting costs: a segment of a stroke on photos of 1, 4 and 16 megapixels, stamps a second
// by brush size on both shader paths, and the frame that shows them. On a bare EGL context.

#include "Bench.h"

#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/gl/GLContext.h"
#include "platform/gl/OffscreenGLView.h"

#include <QImage>
#include <QTemporaryDir>

#include <GLES2/gl2.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace pelmira::bench {
namespace {

constexpr int rounds = 60;
constexpr int stampsInSegment = 9; // what a finger leaves between two events at a brisk pace

struct Photo {
    Photo(int megapixels, bool fetch)
        : context(GLContext::surfaceless({.allowFramebufferFetch = fetch})),
          engine(view, context, defaults)
    {
        const int width = static_cast<int>(std::lround(std::sqrt(megapixels * 1e6 * 4 / 3)));
        QImage image(width, width * 3 / 4, QImage::Format_ARGB32_Premultiplied);
        image.fill(qRgb(90, 140, 200));
        view.setNeedsDisplay();
        view.displayIfNeeded();
        engine.open(image);
        while (!engine.canvas.readySurface())
            drainMainQueue();
    }

    // Zooms so that the brush is so many pixels of the photo across, whatever the photo's size.
    void setBrushPixels(double pixels)
    {
        engine.canvas.fgImage.scale *= engine.brush.brushSize() / pixels;
    }

    // Paints back and forth across the middle of the view; one segment of `stamps` stamps.
    double segment(int stamps, bool isErase)
    {
        const double length = engine.brush.brushSizeInPoints() / 15.0 * (stamps - 0.5);
        const QPointF from(195 - length / 2, 422);
        return milliseconds([&] {
            engine.strokes.drawLineFromPoint(from, from + QPointF(length, 0),
                                             engine.brush.brushSize(), isErase);
            glFinish();
        });
    }

    double frame()
    {
        view.setNeedsDisplay();
        return milliseconds([&] {
            view.displayIfNeeded();
            glFinish();
        });
    }

    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(QStringLiteral("preferences.json"))};
    OffscreenGLView view{{390, 844}, 1.0};
    std::shared_ptr<GLContext> context;
    MaskEditorEngine engine;
};

// The contexts take turns, so that a slow moment of the machine falls on all sizes alike.
double segmentsBySize(bool fetch)
{
    std::vector<std::unique_ptr<Photo>> photos;
    for (const int megapixels : {1, 4, 16}) {
        photos.push_back(std::make_unique<Photo>(megapixels, fetch));
        photos.back()->setBrushPixels(120);
    }
    std::vector<std::vector<double>> times(photos.size());
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < photos.size(); ++i) {
            photos[i]->context->makeCurrent();
            photos[i]->segment(stampsInSegment, round % 2); // the change of context isn't painting
            times[i].push_back(photos[i]->segment(stampsInSegment, round % 2));
        }
        ratios.push_back(times.back().back() / times.front().back());
    }
    std::printf("| %s | %.3f | %.3f | %.3f | %.2f |\n", fetch ? "reads its target" : "copies it",
                median(times[0]), median(times[1]), median(times[2]), median(ratios));
    return median(ratios);
}

double stampsPerSecond(bool fetch, double brushPixels, int stamps)
{
    Photo photo(4, fetch);
    photo.setBrushPixels(brushPixels);
    std::vector<double> rates;
    for (int round = 0; round < rounds; ++round)
        rates.push_back(stamps / photo.segment(stamps, round % 2) * 1000);
    return median(rates);
}

void run()
{
    const auto context = GLContext::surfaceless();
    std::printf("%s, %s\n\n", reinterpret_cast<const char*>(glGetString(GL_RENDERER)),
                context->capabilities().framebufferFetch ? "with framebuffer fetch"
                                                         : "without framebuffer fetch");

    std::printf("Milliseconds for a segment of %d stamps of 120 pixels, medians of %d\n\n",
                stampsInSegment, rounds);
    std::printf("| shader | 1 MP | 4 MP | 16 MP | 16 to 1, in pairs |\n|---|---|---|---|---|\n");
    const double ratio = segmentsBySize(true);
    segmentsBySize(false);

    std::printf("\nStamps a second by the brush's size in pixels, %d stamps a segment\n\n",
                stampsInSegment);
    std::printf("| shader | 30 | 120 | 480 |\n|---|---|---|---|\n");
    double typical[2] = {};
    for (const bool fetch : {true, false}) {
        std::printf("| %s |", fetch ? "reads its target" : "copies it");
        for (const double size : {30.0, 120.0, 480.0}) {
            const double rate = stampsPerSecond(fetch, size, stampsInSegment);
            if (size == 120.0)
                typical[fetch] = rate;
            std::printf(" %.0f |", rate);
        }
        std::printf("\n");
    }

    std::printf("\nMilliseconds for a frame of 390 x 844 pixels, medians of %d\n\n", rounds);
    std::printf("| photo | frame |\n|---|---|\n");
    for (const int megapixels : {1, 4, 16}) {
        Photo photo(megapixels, true);
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round)
            times.push_back(photo.frame());
        std::printf("| %d MP | %.2f |\n", megapixels, median(times));
    }

    std::printf("\n");
    printFigure("stroke_segment_16mp_vs_1mp", ratio);
    printFigure("stroke_stamps_per_second_fetch", typical[true]);
    printFigure("stroke_stamps_per_second_copy", typical[false]);
}

} // namespace
} // namespace pelmira::bench

int main()
{
    pelmira::bench::run();
    return 0;
}
