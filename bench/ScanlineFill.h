#pragma once

#include "mask_editor/wand/ColorDistance.h"
#include "platform/pixels/AlphaPlane.h"
#include "platform/pixels/PixelSpan.h"

#include <QPoint>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace pelmira::bench {

/// The fill in its plain form, which defines the wand's result: alpha and distances are copied
/// aside, and each tolerance puts both back and runs a scanline fill with an explicit stack.
class ScanlineFill {
public:
    /// The start must lie in the image.
    ScanlineFill(const PixelSpan& pixels, QPoint start)
        : _pixels(pixels), _start(start), _width(static_cast<int>(pixels.width)),
          _height(static_cast<int>(pixels.height)),
          _color(std::bit_cast<StoredColor>(
              pixels.row(static_cast<std::uint32_t>(start.y()))[start.x()])),
          _alphaBackup(plane()), _distanceBackup(plane())
    {
        copyAlphaPlane(_pixels, _alphaBackup.get());
        colorDistances(_pixels, _color, _distanceBackup.get());
    }

    void setStart(QPoint start) { _start = start; }

    void setTolerance(unsigned tolerance)
    {
        restoreAlphaPlane(_pixels, _alphaBackup.get());
        if (!_distances)
            _distances = plane();
        std::memcpy(_distances.get(), _distanceBackup.get(), planeSize());
        if (_color.a != 0)
            fill(tolerance);
    }

private:
    std::size_t planeSize() const { return std::size_t{_pixels.width} * _pixels.height; }
    std::unique_ptr<std::uint8_t[]> plane() const
    {
        return std::make_unique_for_overwrite<std::uint8_t[]>(planeSize());
    }

    void fill(unsigned tolerance)
    {
        _tolerance = tolerance;
        std::vector<QPoint> seeds;
        seeds.reserve(65536);
        seeds.push_back(_start);
        while (!seeds.empty()) {
            const QPoint seed = seeds.back();
            seeds.pop_back();
            fillSpanAt(seed, seeds);
        }
    }

    std::uint8_t& distance(int x, int y)
    {
        return _distances[static_cast<std::size_t>(_width) * y + x];
    }
    bool passes(int x, int y) { return distance(x, y) < _tolerance; }

    void fillSpanAt(QPoint seed, std::vector<QPoint>& seeds)
    {
        const int y = seed.y();
        int x = seed.x();
        while (x >= 0 && passes(x, y))
            --x;
        // A seed that a neighbouring span has filled since yields to the pixel on its right.
        ++x;
        if (x >= _width || !passes(x, y))
            return;
        bool spanAbove = false;
        bool spanBelow = false;
        const auto seedOnce = [&](int row, bool& inRun) {
            const bool isPassing = passes(x, row);
            if (isPassing && !inRun)
                seeds.emplace_back(x, row);
            inRun = isPassing;
        };
        do {
            reinterpret_cast<std::uint8_t*>(_pixels.row(static_cast<std::uint32_t>(y)) +
                                            x)[ByteAlpha] = 0;
            distance(x, y) = UnreachableDistance;
            if (y >= 1)
                seedOnce(y - 1, spanAbove);
            if (y < _height - 1)
                seedOnce(y + 1, spanBelow);
            ++x;
        } while (x < _width && passes(x, y));
    }

    const PixelSpan _pixels;
    QPoint _start;
    const int _width;
    const int _height;
    const StoredColor _color;
    unsigned _tolerance = 0;
    std::unique_ptr<std::uint8_t[]> _alphaBackup;
    std::unique_ptr<std::uint8_t[]> _distanceBackup;
    std::unique_ptr<std::uint8_t[]> _distances;
};

} // namespace pelmira::bench
