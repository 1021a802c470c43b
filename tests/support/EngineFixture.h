#pragma once

#include "controls/InterfaceButton.h"
#include "mask_editor/tools/EditorTools.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/base/RunLoop.h"
#include "platform/gl/GLContext.h"
#include "platform/gl/OffscreenGLView.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace pelmira {

/// Serves the main queue until the condition holds; false after ten seconds.
inline bool drainUntil(const std::function<bool()>& done)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!done() && std::chrono::steady_clock::now() < deadline) {
        if (!drainMainQueue())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return done();
}

/// An opaque image in which every pixel's colour tells its place.
inline QImage placeImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x & 255, y & 255, (x / 256) * 16 + y / 256));
    return image;
}

/// A red disc on a plain green ground.
inline QImage discImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    const int radius = std::min(width, height) / 4;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int dx = x - width / 2;
            const int dy = y - height / 2;
            const bool inside = dx * dx + dy * dy < radius * radius;
            image.setPixel(x, y, inside ? qRgb(200, 30, 30) : qRgb(40, 160, 60));
        }
    return image;
}

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
        engine.canvas.initialiseWithImage(image);
    }

    QImage frame()
    {
        view.displayIfNeeded();
        return view.readPixels();
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

    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(QStringLiteral("preferences.json"))};
    OffscreenGLView view;
    std::shared_ptr<GLContext> context;
    MaskEditorEngine engine;
    InterfaceButton brushAdjustButton;
    bool toolsShown = true;
    EditorTools tools{engine, brushAdjustButton, [this](bool shown) { toolsShown = shown; }};
};

} // namespace pelmira
