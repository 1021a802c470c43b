#pragma once

#include "controls/InterfaceButton.h"
#include "mask_editor/tools/EditorTools.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/gl/GLContext.h"
#include "platform/gl/OffscreenGLView.h"
#include "support/Test.h"

namespace pelmira {

inline TouchEvent fingersAt(std::initializer_list<QPointF> points)
{
    TouchEvent event;
    for (const QPointF& point : points)
        event.allTouches.push_back({static_cast<int>(event.allTouches.size()), point});
    return event;
}

/// The engine and its tools on a bare context with a view of a phone's size.
class EngineFixture {
public:
    explicit EngineFixture(GLContext::Options options = {}, QSizeF viewSize = {390, 844})
        : view(viewSize, 1.0), context(GLContext::surfaceless(options)),
          engine(view, context, defaults)
    {
    }

    void open(const QImage& image)
    {
        view.setNeedsDisplay();
        view.displayIfNeeded();
        engine.open(image);
        EXPECT_TRUE(settle());
    }

    QImage frame()
    {
        view.displayIfNeeded();
        return view.readPixels();
    }

    QImage newFrame()
    {
        view.setNeedsDisplay();
        return frame();
    }

    /// As the CPU's jobs change the mask; `alphaAt` takes x and y.
    template <class AlphaAt>
    void setAlpha(const QRect& part, AlphaAt alphaAt)
    {
        OGLESMappedTexture& surface = *engine.canvas.fgMappedTexture;
        ASSERT_TRUE(surface.lockTexture());
        surface.changePixels([&](const PixelSpan& pixels) {
            for (int y = part.top(); y <= part.bottom(); ++y)
                for (int x = part.left(); x <= part.right(); ++x) {
                    std::uint32_t& pixel = pixels.row(std::uint32_t(y))[x];
                    pixel = (pixel & 0xFFFFFFU) | std::uint32_t(alphaAt(x, y)) << 24;
                }
            return QRegion(part);
        });
        surface.unlockTexture();
    }

    /// The surface's bytes as GL and CPU agree on them, rows tightly packed.
    std::vector<std::uint32_t> pixels()
    {
        OGLESMappedTexture& surface = *engine.canvas.fgMappedTexture;
        std::vector<std::uint32_t> flat(std::size_t(surface.width()) * surface.height());
        EXPECT_TRUE(surface.lockTexture());
        surface.copyIntoFlatPixelsBuffer(flat.data());
        surface.unlockTexture();
        return flat;
    }

    std::vector<std::uint8_t> alpha()
    {
        std::vector<std::uint8_t> plane;
        for (const std::uint32_t pixel : pixels())
            plane.push_back(static_cast<std::uint8_t>(pixel >> 24));
        return plane;
    }

    QPointF screenPosOfPixel(QPointF pixel) const
    {
        const FgImage& fg = engine.canvas.fgImage;
        const double pointsPerUnit = 1.0 / engine.canvas.unitsPerPoint();
        const QSizeF shown = fg.size * fg.scale * pointsPerUnit;
        const QSizeF size = view.bounds().size();
        return {size.width() / 2 + (pixel.x() / fg.imageRes.width() - 0.5) * shown.width(),
                size.height() / 2 + (pixel.y() / fg.imageRes.height() - 0.5) * shown.height()};
    }

    /// Waits until no fill is at work.
    bool settle()
    {
        return drainUntil([this] { return engine.canvas.readySurface() != nullptr; });
    }

    test::TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    OffscreenGLView view;
    std::shared_ptr<GLContext> context;
    MaskEditorEngine engine;
    InterfaceButton brushAdjustButton;
    bool toolsShown = true;
    EditorTools tools{engine, brushAdjustButton, [this](bool shown) { toolsShown = shown; }};
};

} // namespace pelmira
