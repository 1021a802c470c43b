#include "background_editor/filters/WideBlur.h"

#include "background_editor/filters/GaussianWeights.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace pelmira {
namespace {

using Line = std::vector<float>;

constexpr double nodesPerDeviation = 2.5;
constexpr double widestCell = 16.0; // sums over a triangle's height then fit into 16 bits

std::size_t cellForDeviation(double deviation)
{
    return static_cast<std::size_t>(
        std::clamp(std::floor(deviation / nodesPerDeviation), 2.0, widestCell));
}

/// What triangle and spline leave to be done, in nodes. Variances of independent blurs add up.
double deviationOnGrid(double deviation, std::size_t cell)
{
    const auto side = static_cast<double>(cell);
    const double ofTriangle = (side * side - 1.0) / 6.0;
    const double ofSpline = side * side / 4.0;
    return std::sqrt(deviation * deviation - ofTriangle - ofSpline) / side;
}

/// The grid along one side. A node stands on every `cell`-th pixel from the first one on; there are
/// some before it and after the last.
struct Nodes {
    Nodes(std::size_t pixels, std::size_t cellSize, std::size_t reach)
        : cell(cellSize), margin(1 + reach), blurred((pixels - 1 + cell / 2) / cell + 3),
          all(blurred + 2 * reach)
    {
    }
    /// The first pixel under the first node's triangle; beyond the edge.
    std::ptrdiff_t firstPixel() const
    {
        return 1 - static_cast<std::ptrdiff_t>((margin + 1) * cell);
    }
    std::size_t pixels() const { return (all + 1) * cell - 1; }

    std::size_t cell;
    std::size_t margin; ///< nodes before that of the first pixel
    std::size_t
        blurred;     ///< those that the spline needs: one more at each end than cover the pixels
    std::size_t all; ///< those that their blur needs
};

/// values[i] = Σ weights[j] × (source[i - j × step] + source[i + j × step]), the middle only once.
/// Reads up to a block beyond the last value.
void convolve(const float* source, std::size_t step, const std::vector<double>& weights,
              float* values, std::size_t count)
{
    using Vector = float __attribute__((vector_size(16)));
    const auto at = [](const float* floats) {
        Vector vector;
        std::memcpy(&vector, floats, sizeof vector);
        return vector;
    };
    constexpr std::size_t blockSize = 8;
    for (std::size_t i = 0; i < count; i += blockSize) {
        const float* middle = source + i;
        Vector sums[] = {at(middle) * static_cast<float>(weights[0]),
                         at(middle + 4) * static_cast<float>(weights[0])};
        for (std::size_t j = 1; j < weights.size(); ++j) {
            const auto weight = static_cast<float>(weights[j]);
            const float* before = middle - j * step;
            const float* after = middle + j * step;
            sums[0] += (at(before) + at(after)) * weight;
            sums[1] += (at(before + 4) + at(after + 4)) * weight;
        }
        std::memcpy(values + i, sums, std::min(blockSize, count - i) * sizeof(float));
    }
}

constexpr std::size_t slack = 8; // what convolve may read too much

/// Where a pixel lies between nodes. Counted from the first blurred node, `node` is the one before
/// the nearest.
struct Spline {
    Spline(std::size_t pixel, std::size_t cell) : node((pixel + cell / 2) / cell)
    {
        const auto offset = (static_cast<float>(pixel) - static_cast<float>(node * cell)) /
                            static_cast<float>(cell);
        before = 0.5F * (0.5F - offset) * (0.5F - offset);
        middle = 0.75F - offset * offset;
        after = 0.5F * (0.5F + offset) * (0.5F + offset);
    }
    std::size_t node;
    float before;
    float middle;
    float after;
};

template <std::size_t Channels>
class Blur {
public:
    Blur(const SampleRows<const std::uint8_t>& source, const SampleRows<std::uint8_t>& target,
         double deviation, Beyond beyond)
        : _source(source), _target(target), _beyond(beyond), _cell(cellForDeviation(deviation)),
          _weights(gaussianWeights(deviationOnGrid(deviation, _cell))),
          _columns(source.width, _cell, reach()), _rows(source.height, _cell, reach())
    {
        for (std::size_t x = 0; x < target.width; ++x)
            _splines.emplace_back(x, _cell);
    }

    void run()
    {
        blurReduced();
        writeEnlarged();
    }

private:
    std::size_t reach() const { return _weights.size() - 1; }

    void blurReduced()
    {
        const std::size_t pitch = _columns.blurred * Channels;
        Line sideways(_rows.all * pitch + slack);
        Line reduced(_columns.all * Channels + slack);
        for (std::size_t row = 0; row < _rows.all; ++row) {
            sumRows(row);
            extendSums();
            reduceLine(reduced);
            convolve(&reduced[reach() * Channels], Channels, _weights, &sideways[row * pitch],
                     pitch);
        }
        _small.resize(_rows.blurred * pitch);
        for (std::size_t row = 0; row < _rows.blurred; ++row)
            convolve(&sideways[(row + reach()) * pitch], pitch, _weights, &_small[row * pitch],
                     pitch);
    }

    /// The triangle of one row of nodes, downwards only.
    void sumRows(std::size_t node)
    {
        const std::size_t count = _source.width * Channels;
        _sums.assign(count, 0);
        const std::ptrdiff_t first = _rows.firstPixel() + static_cast<std::ptrdiff_t>(node * _cell);
        for (std::size_t i = 0; i + 1 < 2 * _cell; ++i) {
            const std::ptrdiff_t y = within(first + static_cast<std::ptrdiff_t>(i),
                                            static_cast<std::ptrdiff_t>(_source.height), _beyond);
            if (y < 0)
                continue;
            const std::uint8_t* samples = _source.row(static_cast<std::size_t>(y));
            const std::uint16_t weight = triangle(i);
            for (std::size_t k = 0; k < count; ++k)
                _sums[k] = static_cast<std::uint16_t>(_sums[k] + weight * samples[k]);
        }
    }

    std::uint16_t triangle(std::size_t i) const
    {
        return static_cast<std::uint16_t>(i < _cell ? i + 1 : 2 * _cell - 1 - i);
    }

    /// The sums of all pixels under the nodes of a row.
    void extendSums()
    {
        const std::ptrdiff_t first = _columns.firstPixel();
        const auto width = static_cast<std::ptrdiff_t>(_source.width);
        const auto end = first + static_cast<std::ptrdiff_t>(_columns.pixels());
        _line.resize(_columns.pixels() * Channels);
        const auto extend = [&](std::ptrdiff_t from, std::ptrdiff_t to) {
            for (std::ptrdiff_t x = from; x < to; ++x) {
                std::uint16_t* pixel = &_line[static_cast<std::size_t>(x - first) * Channels];
                const std::ptrdiff_t other = within(x, width, _beyond);
                if (other < 0)
                    std::fill_n(pixel, Channels, std::uint16_t(0));
                else
                    std::copy_n(&_sums[static_cast<std::size_t>(other) * Channels], Channels,
                                pixel);
            }
        };
        extend(first, 0);
        std::copy(_sums.begin(), _sums.end(),
                  _line.begin() - first * static_cast<std::ptrdiff_t>(Channels));
        extend(width, end);
    }

    /// The triangle along the row.
    void reduceLine(Line& reduced) const
    {
        const auto area = static_cast<float>(_cell * _cell);
        const float scale = 1.0F / (area * area);
        for (std::size_t node = 0; node < _columns.all; ++node) {
            std::uint32_t sums[Channels] = {};
            const std::uint16_t* pixel = &_line[node * _cell * Channels];
            for (std::size_t i = 0; i + 1 < 2 * _cell; ++i, pixel += Channels)
                for (std::size_t channel = 0; channel < Channels; ++channel)
                    sums[channel] += std::uint32_t(triangle(i)) * pixel[channel];
            for (std::size_t channel = 0; channel < Channels; ++channel)
                reduced[node * Channels + channel] =
                    static_cast<float>(static_cast<std::int32_t>(sums[channel])) * scale;
        }
    }

    void enlargeRow(std::size_t row, Line& wide) const
    {
        const float* nodes = &_small[row * _columns.blurred * Channels];
        for (std::size_t x = 0; x < _target.width; ++x) {
            const Spline& spline = _splines[x];
            const float* at = nodes + spline.node * Channels;
            for (std::size_t channel = 0; channel < Channels; ++channel)
                wide[x * Channels + channel] = spline.before * at[channel] +
                                               spline.middle * at[Channels + channel] +
                                               spline.after * at[2 * Channels + channel];
        }
    }

    void writeEnlarged() const
    {
        const std::size_t count = _target.width * Channels;
        Line wide[3] = {Line(count), Line(count), Line(count)};
        std::size_t enlarged = 0; // rows of nodes so far
        for (std::size_t y = 0; y < _target.height; ++y) {
            const Spline spline(y, _cell);
            for (; enlarged < spline.node + 3; ++enlarged)
                enlargeRow(enlarged, wide[enlarged % 3]);
            const float* before = wide[spline.node % 3].data();
            const float* middle = wide[(spline.node + 1) % 3].data();
            const float* after = wide[(spline.node + 2) % 3].data();
            std::uint8_t* samples = _target.row(y);
            for (std::size_t i = 0; i < count; ++i) {
                const float value =
                    spline.before * before[i] + spline.middle * middle[i] + spline.after * after[i];
                samples[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(value + 0.5F));
            }
        }
    }

    const SampleRows<const std::uint8_t> _source;
    const SampleRows<std::uint8_t> _target;
    const Beyond _beyond;
    const std::size_t _cell;
    const std::vector<double> _weights;
    const Nodes _columns;
    const Nodes _rows;
    std::vector<Spline> _splines;     ///< for each column of the picture
    std::vector<std::uint16_t> _sums; ///< of one row of nodes, for each column of the picture
    std::vector<std::uint16_t> _line; ///< the same, extended
    Line _small;                      ///< the reduced picture, blurred
};

} // namespace

void wideBlur(const SampleRows<const std::uint8_t>& source, const SampleRows<std::uint8_t>& target,
              double deviation, Beyond beyond)
{
    if (source.channels == 1)
        Blur<1>(source, target, deviation, beyond).run();
    else
        Blur<4>(source, target, deviation, beyond).run();
}

} // namespace pelmira
