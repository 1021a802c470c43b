// What undo costs at 16 megapixels: taking back a small stroke against putting the whole mask back
// and sending the whole photo, and the memory of 30 levels of a soft mask. On a bare EGL context.

#include "Bench.h"
#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/base/RunLoop.h"
#include "platform/gl/OffscreenGLView.h"
#include "platform/pixels/AlphaPlane.h"

#include <QImage>
#include <QTemporaryDir>

#include <GLES2/gl2.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <random>
#include <set>
#include <thread>
#include <vector>

namespace pelmira::bench {
namespace {

constexpr int side = 4000;
constexpr int rounds = 40;
constexpr int levels = 30;

struct Editor {
    Editor()
    {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(qRgb(90, 140, 200));
        view.setNeedsDisplay();
        view.displayIfNeeded();
        engine.open(image);
        while (!engine.canvas.readySurface())
            drainMainQueue();
        makeSoft();
    }

    /// A mask without a single plain tile: waves, with the grain that a brush's edge leaves.
    void makeSoft()
    {
        OGLESMappedTexture& surface = *engine.canvas.fgMappedTexture;
        std::mt19937 random(7);
        surface.lockTexture();
        surface.changePixels([&](const PixelSpan& pixels) {
            for (std::uint32_t y = 0; y < pixels.height; ++y)
                for (std::uint32_t x = 0; x < pixels.width; ++x) {
                    const double wave = 127 + 120 * std::sin(x / 300.0) * std::cos(y / 400.0);
                    const auto alpha =
                        static_cast<std::uint32_t>(wave) + static_cast<std::uint32_t>(random() & 1);
                    pixels.row(y)[x] = (pixels.row(y)[x] & 0xFFFFFFU) | alpha << 24;
                }
            return QRegion(surface.bounds());
        });
        surface.unlockTexture();
    }

    void setBrushPixels(double pixels)
    {
        engine.canvas.fgImage.scale *= engine.brush.brushSize() / pixels;
    }

    void stroke(QPointF from, QPointF to)
    {
        engine.strokes.drawLineFromPoint(from, to, engine.brush.brushSize(), true);
        glFinish();
    }

    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(QStringLiteral("preferences.json"))};
    OffscreenGLView view{{390, 844}, 1.0};
    std::shared_ptr<GLContext> context = GLContext::surfaceless();
    MaskEditorEngine engine{view, context, defaults};
};

/// The whole mask put back and the whole photo sent, as an undo that knew of no places would.
double wholeUpload(OGLESMappedTexture& surface, const std::vector<std::uint8_t>& plane)
{
    return milliseconds([&] {
        surface.lockTexture();
        surface.changePixels([&](const PixelSpan& pixels) {
            restoreAlphaPlane(pixels, plane.data());
            return QRegion(surface.bounds());
        });
        surface.unlockTexture();
        glFinish();
    });
}

double undoAgainstWhole()
{
    Editor editor;
    editor.setBrushPixels(120);
    OGLESMappedTexture& surface = *editor.engine.canvas.fgMappedTexture;
    std::vector<std::uint8_t> plane(std::size_t{side} * side);
    surface.lockTexture();
    copyAlphaPlane(surface.lockedPixels(), plane.data());
    surface.unlockTexture();

    std::vector<double> snapshots;
    std::vector<double> undos;
    std::vector<double> wholes;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        snapshots.push_back(milliseconds([&] { editor.engine.history.saveUndoBuffer(); }));
        editor.stroke({150, 422}, {165, 430});
        undos.push_back(milliseconds([&] {
            editor.engine.history.undo();
            glFinish();
        }));
        wholes.push_back(wholeUpload(surface, plane));
        ratios.push_back(undos.back() / wholes.back());
        editor.engine.history.getUndoBuffer(); // which upsets the sharing: made good here
    }
    std::printf("a stroke of 15 points with a brush of 120 pixels, %d x %d, medians of %d\n"
                "its level %.2f ms, its undo %.2f ms, the whole mask %.2f ms\n",
                side, side, rounds, median(snapshots), median(undos), median(wholes));
    return median(ratios);
}

/// What the tiles of all levels take, each counted once, when all are packed.
double megabytes(const std::vector<std::shared_ptr<ZKLUndoEntry>>& history)
{
    std::set<const MaskTile*> seen;
    std::size_t bytes = 0;
    for (const auto& level : history)
        for (const auto& tile : level->tiles().tiles()) {
            tile->pack();
            if (seen.insert(tile.get()).second)
                bytes += tile->footprint();
        }
    return double(bytes) / 1e6;
}

double strokesOverASoftMask()
{
    Editor editor;
    editor.setBrushPixels(400);
    std::mt19937 random(11);
    const auto point = [&] {
        return QPointF(90 + double(random() % 210), 320 + double(random() % 210));
    };
    std::vector<std::shared_ptr<ZKLUndoEntry>> history;
    for (int i = 0; i < levels; ++i) {
        history.push_back(editor.engine.history.getUndoBuffer());
        const QPointF from = point();
        editor.stroke(from, point());
    }
    return megabytes(history);
}

double inversionsOfASoftMask()
{
    Editor editor;
    std::vector<std::shared_ptr<ZKLUndoEntry>> history;
    for (int i = 0; i < levels; ++i) {
        history.push_back(editor.engine.history.getUndoBuffer());
        maskInvert(editor.engine.canvas, editor.engine.shaders, editor.engine.reader);
    }
    return megabytes(history);
}

void run()
{
    const double ratio = undoAgainstWhole();
    const double strokes = strokesOverASoftMask();
    const double inversions = inversionsOfASoftMask();
    std::printf("30 levels of a mask that is soft everywhere: strokes of 400 pixels across it "
                "%.1f MB, inversions %.1f MB, planes as they are %.0f MB\n\n",
                strokes, inversions, double(side) * side * levels / 1e6);
    printFigure("undo_30_levels_inverted_mb", inversions);
    printFigure("undo_30_levels_mb", strokes);
    printFigure("undo_small_vs_full", ratio);
}

} // namespace
} // namespace pelmira::bench

int main()
{
    pelmira::bench::run();
    return 0;
}
