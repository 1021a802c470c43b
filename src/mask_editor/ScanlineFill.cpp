#include "mask_editor/ScanlineFill.h"

#include "mask_editor/ColorDistance.h"

#include <cstddef>
#include <vector>

namespace pelmira {
namespace {

constexpr std::size_t FirstStackCapacity = 65536;

class ScanlineFill {
public:
    ScanlineFill(const PixelSpan& pixels, std::uint8_t* distances, std::uint32_t tolerance)
        : _pixels(pixels), _distances(distances), _tolerance(tolerance),
          _width(static_cast<int>(pixels.width)), _height(static_cast<int>(pixels.height))
    {
        _seeds.reserve(FirstStackCapacity);
    }

    QRect run(QPoint start)
    {
        _seeds.push_back(start);
        while (!_seeds.empty()) {
            const QPoint seed = _seeds.back();
            _seeds.pop_back();
            fillSpanAt(seed);
        }
        return _filled;
    }

private:
    bool passes(int x, int y) const
    {
        return _distances[static_cast<std::size_t>(_width) * y + x] < _tolerance;
    }

    void fillSpanAt(QPoint seed)
    {
        const int y = seed.y();
        int x = seed.x();
        while (x >= 0 && passes(x, y))
            --x;
        const int first = ++x;
        if (x >= _width || !passes(x, y))
            return;
        bool spanAbove = false;
        bool spanBelow = false;
        do {
            std::uint32_t* pixel = _pixels.row(y) + x;
            reinterpret_cast<std::uint8_t*>(pixel)[ByteAlpha] = 0;
            _distances[static_cast<std::size_t>(_width) * y + x] = UnreachableDistance;
            if (y >= 1)
                seedOnce(x, y - 1, spanAbove);
            if (y < _height - 1)
                seedOnce(x, y + 1, spanBelow);
            ++x;
        } while (x < _width && passes(x, y));
        _filled |= QRect(QPoint(first, y), QPoint(x - 1, y));
    }

    /// One seed for each run of passing pixels, at the run's left end.
    void seedOnce(int x, int y, bool& inRun)
    {
        const bool isPassing = passes(x, y);
        if (isPassing && !inRun)
            _seeds.emplace_back(x, y);
        inRun = isPassing;
    }

    const PixelSpan& _pixels;
    std::uint8_t* const _distances;
    const std::uint32_t _tolerance;
    const int _width;
    const int _height;
    std::vector<QPoint> _seeds;
    QRect _filled;
};

} // namespace

QRect scanlineFill(const PixelSpan& pixels, std::uint8_t* distances, QPoint start,
                   std::uint32_t tolerance)
{
    return ScanlineFill(pixels, distances, tolerance).run(start);
}

} // namespace pelmira
