#include "background_editor/composition/Resample.h"

#include "platform/base/ParallelJobs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

namespace pelmira {
namespace {

// Four floats that the compiler keeps in one register: the components of a pixel.
using Color [[gnu::vector_size(16)]] = float;
using Bytes [[gnu::vector_size(4)]] = std::uint8_t;

/// What a target row takes of the source: the components of each pixel.
using Sums = std::vector<float>;

constexpr double cubicSupport = 2.0;
constexpr std::uint32_t bandRows = 32; // of the target, a job
constexpr std::size_t blockSize = 64;  // components summed up at a time, which stay in registers

Color load(std::uint32_t pixel)
{
    Bytes bytes;
    std::memcpy(&bytes, &pixel, sizeof bytes);
    return __builtin_convertvector(bytes, Color);
}

/// Rounded, and no component above the transparency: the cubic swings over at hard edges.
std::uint32_t store(Color color)
{
    const float alpha = std::clamp(color[ByteAlpha], 0.0F, 255.0F);
    const Color least{};
    const Color most{alpha, alpha, alpha, alpha};
    color = color < least ? least : color;
    color = (color > most ? most : color) + 0.5F;
    const Bytes bytes = __builtin_convertvector(color, Bytes);
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, &bytes, sizeof pixel);
    return pixel;
}

double cubic(double x)
{
    x = std::abs(x);
    if (x < 1.0)
        return (1.5 * x - 2.5) * x * x + 1.0;
    if (x < 2.0)
        return ((-0.5 * x + 2.5) * x - 4.0) * x + 2.0;
    return 0.0;
}

/// What one row or column of the target takes from the source.
struct Taps {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    std::size_t weights = 0; ///< where they begin among all weights
};

struct Axis {
    std::vector<Taps> taps;
    std::vector<float> weights;
};

Axis axisFor(const ResampledAxis& axis, std::uint32_t targetSize, std::uint32_t sourceSize,
             bool coversTarget)
{
    Axis result;
    result.taps.resize(targetSize);
    const double step = axis.sourceLength / axis.targetLength; // source pixels a target pixel
    const double widening = std::max(1.0, step);
    const double reach = cubicSupport * widening;
    std::vector<double> weights;
    for (std::uint32_t i = 0; i < targetSize; ++i) {
        double along = (i + 0.5 - axis.targetStart) * step;
        if (axis.isMirrored)
            along = axis.sourceLength - along;
        const double center = axis.sourceStart + along - 0.5;
        Taps& taps = result.taps[i];
        taps.weights = result.weights.size();
        if (!coversTarget && (center < -reach || center > sourceSize - 1 + reach))
            continue;
        const auto from = static_cast<std::int64_t>(std::ceil(center - reach));
        const auto to = static_cast<std::int64_t>(std::floor(center + reach));
        const auto last = static_cast<std::int64_t>(sourceSize) - 1;
        const std::int64_t first = std::clamp<std::int64_t>(from, 0, last);
        weights.assign(static_cast<std::size_t>(std::clamp<std::int64_t>(to, 0, last) - first + 1),
                       0.0);
        double sum = 0.0;
        for (std::int64_t k = from; k <= to; ++k) {
            const double weight = cubic((static_cast<double>(k) - center) / widening);
            sum += weight;
            if (coversTarget || (k >= 0 && k <= last))
                weights[static_cast<std::size_t>(std::clamp<std::int64_t>(k, 0, last) - first)] +=
                    weight;
        }
        taps.first = static_cast<std::uint32_t>(first);
        taps.count = static_cast<std::uint32_t>(weights.size());
        for (const double weight : weights)
            result.weights.push_back(static_cast<float>(weight / sum));
    }
    return result;
}

/// The weighted sum of so many components, at most a block, of the rows that begin here.
inline void addBlock(const std::uint8_t* rows, std::size_t stride, std::uint32_t count,
                     const float* weights, std::size_t components, float* sums)
{
    float block[blockSize] = {};
    for (std::uint32_t k = 0; k < count; ++k, rows += stride)
        for (std::size_t i = 0; i < components; ++i)
            block[i] += weights[k] * static_cast<float>(rows[i]);
    std::copy_n(block, components, sums);
}

/// The weighted sum of the rows that a row of the target takes.
void addRows(const PixelSpan& source, const Taps& taps, const float* weights, Sums& sums)
{
    const auto* rows = reinterpret_cast<const std::uint8_t*>(source.row(taps.first));
    const std::size_t components = std::size_t{source.width} * 4;
    std::size_t i = 0;
    for (; i + blockSize <= components; i += blockSize)
        addBlock(rows + i, source.bytesPerRow, taps.count, weights, blockSize, sums.data() + i);
    addBlock(rows + i, source.bytesPerRow, taps.count, weights, components - i, sums.data() + i);
}

void fillRow(const Axis& x, const Sums& sums, std::uint32_t* row)
{
    for (std::size_t i = 0; i < x.taps.size(); ++i) {
        const Taps& taps = x.taps[i];
        const float* weights = x.weights.data() + taps.weights;
        const float* from = sums.data() + std::size_t{taps.first} * 4;
        Color sum{};
        for (std::uint32_t k = 0; k < taps.count; ++k, from += 4) {
            Color color;
            std::memcpy(&color, from, sizeof color);
            sum += weights[k] * color;
        }
        row[i] = store(sum);
    }
}

/// The four weights of the cubic for a place that lies between the second and the third sample.
std::array<float, 4> cubicWeights(float t)
{
    const float t2 = t * t;
    const float t3 = t2 * t;
    return {-0.5F * t3 + t2 - 0.5F * t, 1.5F * t3 - 2.5F * t2 + 1.0F,
            -1.5F * t3 + 2.0F * t2 + 0.5F * t, 0.5F * t3 - 0.5F * t2};
}

Color sampleAt(const PixelSpan& source, int left, int top, const std::array<float, 4>& wx,
               const std::array<float, 4>& wy)
{
    Color sum{};
    const bool isInside =
        left >= 0 && top >= 0 && left + 4 <= int(source.width) && top + 4 <= int(source.height);
    for (int j = 0; j < 4; ++j) {
        const int y = top + j;
        if (!isInside && (y < 0 || y >= int(source.height)))
            continue;
        const std::uint32_t* row = source.row(static_cast<std::uint32_t>(y));
        Color line{};
        for (int i = 0; i < 4; ++i) {
            const int x = left + i;
            if (isInside || (x >= 0 && x < int(source.width)))
                line += wx[std::size_t(i)] * load(row[x]);
        }
        sum += wy[std::size_t(j)] * line;
    }
    return sum;
}

/// For which columns a linear function of the column lies between two values.
void narrow(double slope, double offset, double low, double high, double& from, double& to)
{
    if (std::abs(slope) < 1e-12) {
        if (offset < low || offset > high)
            to = from - 1.0;
        return;
    }
    const double a = (low - offset) / slope;
    const double b = (high - offset) / slope;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
}

void fillTurnedRow(const PixelSpan& source, const PixelMapping& m, std::uint32_t y,
                   std::uint32_t width, std::uint32_t* row)
{
    std::memset(row, 0, std::size_t{width} * sizeof *row);
    // Of the place of the sample before and above; the cubic reaches two samples beyond the edge.
    const double v = y + 0.5;
    const double x0 = m.ax * 0.5 + m.bx * v + m.cx - 0.5;
    const double y0 = m.ay * 0.5 + m.by * v + m.cy - 0.5;
    double from = 0.0;
    double to = width - 1.0;
    narrow(m.ax, x0, -2.0, source.width + 1.0, from, to);
    narrow(m.ay, y0, -2.0, source.height + 1.0, from, to);
    for (auto i = std::int64_t(std::ceil(from)); i <= std::int64_t(std::floor(to)); ++i) {
        const double sx = x0 + m.ax * double(i);
        const double sy = y0 + m.ay * double(i);
        const double left = std::floor(sx);
        const double top = std::floor(sy);
        row[i] = store(sampleAt(source, int(left) - 1, int(top) - 1, cubicWeights(float(sx - left)),
                                cubicWeights(float(sy - top))));
    }
}

template <class FillRow>
void inBands(std::uint32_t height, const FillRow& fillRows)
{
    doInParallel((height + bandRows - 1) / bandRows, [&](std::size_t band, unsigned worker) {
        const auto from = std::uint32_t(band) * bandRows;
        fillRows(from, std::min(height, from + bandRows), worker);
    });
}

} // namespace

bool resample(const PixelSpan& source, const PixelSpan& target, const ResampledAxis& x,
              const ResampledAxis& y, bool coversTarget)
{
    try {
        const Axis columns = axisFor(x, target.width, source.width, coversTarget);
        const Axis rows = axisFor(y, target.height, source.height, coversTarget);
        std::vector<Sums> sums(parallelWorkers(), Sums(std::size_t{source.width} * 4));
        inBands(target.height, [&](std::uint32_t from, std::uint32_t to, unsigned worker) {
            for (std::uint32_t row = from; row < to; ++row) {
                const Taps& taps = rows.taps[row];
                if (taps.count == 0) {
                    std::memset(target.row(row), 0, std::size_t{target.width} * 4);
                    continue;
                }
                addRows(source, taps, rows.weights.data() + taps.weights, sums[worker]);
                fillRow(columns, sums[worker], target.row(row));
            }
        });
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void resampleTurned(const PixelSpan& source, const PixelSpan& target, const PixelMapping& mapping)
{
    inBands(target.height, [&](std::uint32_t from, std::uint32_t to, unsigned) {
        for (std::uint32_t row = from; row < to; ++row)
            fillTurnedRow(source, mapping, row, target.width, target.row(row));
    });
}

} // namespace pelmira
