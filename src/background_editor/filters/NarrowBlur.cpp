#include "background_editor/filters/NarrowBlur.h"

#include "background_editor/filters/GaussianWeights.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace pelmira {
namespace {

// Samples have 7 bits after the point, so that two of them can be added; weights have 16.
using Fixed = std::uint16_t;
constexpr unsigned sampleBits = 7;
constexpr double one = 65536.0;

std::vector<Fixed> fixedWeights(double deviation)
{
    std::vector<Fixed> weights;
    std::uint32_t sides = 0;
    for (const double weight : gaussianWeights(deviation)) {
        weights.push_back(static_cast<Fixed>(std::min(std::lround(weight * one), 65535L)));
        sides += 2U * weights.back();
    }
    // The middle takes what rounding has left, so that a plain colour stays what it is.
    sides -= 2U * weights.front();
    weights.front() = static_cast<Fixed>(std::min(65536U - sides, 65535U));
    return weights;
}

/// values[i] = Σ weights[j] × (source[i - j × step] + source[i + j × step]), the middle only once.
void convolve(const Fixed* source, std::size_t step, const std::vector<Fixed>& weights,
              Fixed* values, std::size_t count)
{
    constexpr std::size_t blockSize = 32;
    for (std::size_t start = 0; start < count; start += blockSize) {
        // What is dropped after the point, half a unit each time, is put in first.
        const auto dropped = static_cast<Fixed>(weights.size() / 2);
        Fixed block[blockSize];
        const Fixed* middle = source + start;
        for (std::size_t i = 0; i < blockSize; ++i)
            block[i] =
                static_cast<Fixed>(dropped + ((std::uint32_t(middle[i]) * weights[0]) >> 16));
        for (std::size_t j = 1; j < weights.size(); ++j) {
            const Fixed* before = middle - j * step;
            const Fixed* after = middle + j * step;
            const std::uint32_t weight = weights[j];
            for (std::size_t i = 0; i < blockSize; ++i) {
                const auto both = static_cast<Fixed>(before[i] + after[i]);
                block[i] = static_cast<Fixed>(block[i] + ((both * weight) >> 16));
            }
        }
        std::copy_n(block, std::min(blockSize, count - start), values + start);
    }
}

class Blur {
public:
    Blur(const SampleRows<const std::uint8_t>& source, const SampleRows<std::uint8_t>& target,
         double deviation, Beyond beyond)
        : _source(source), _target(target), _weights(fixedWeights(deviation)), _beyond(beyond),
          _reach(static_cast<std::ptrdiff_t>(_weights.size()) - 1),
          _count(source.width * source.channels), _line(_count + 2 * margin() + slack),
          _band((bandHeight + 2 * rows()) * _count + slack)
    {
    }

    /// Downwards in bands: the rows blurred sideways that a band needs stay in the cache.
    void run()
    {
        for (std::size_t row = 0; row < 2 * rows(); ++row)
            blurSideways(static_cast<std::ptrdiff_t>(row) - _reach, row);
        for (std::size_t y = 0; y < _target.height; y += bandHeight) {
            const std::size_t height = std::min(bandHeight, _target.height - y);
            for (std::size_t row = 0; row < height; ++row)
                blurSideways(static_cast<std::ptrdiff_t>(y + row) + _reach, 2 * rows() + row);
            for (std::size_t row = 0; row < height; ++row)
                writeRow(row, _target.row(y + row));
            std::memmove(_band.data(), &_band[height * _count],
                         2 * rows() * _count * sizeof(Fixed));
        }
    }

private:
    static constexpr std::size_t bandHeight = 16;
    static constexpr std::size_t slack = 32; // what convolve may read too much

    std::size_t rows() const { return static_cast<std::size_t>(_reach); }
    std::size_t margin() const { return rows() * _source.channels; }

    void blurSideways(std::ptrdiff_t y, std::size_t bandRow)
    {
        Fixed* blurred = &_band[bandRow * _count];
        const auto other = within(y, static_cast<std::ptrdiff_t>(_source.height), _beyond);
        if (other < 0) {
            std::fill_n(blurred, _count, Fixed(0));
            return;
        }
        const std::uint8_t* samples = _source.row(static_cast<std::size_t>(other));
        Fixed* inside = _line.data() + margin();
        for (std::size_t i = 0; i < _count; ++i)
            inside[i] = static_cast<Fixed>(samples[i] << sampleBits);
        const auto width = static_cast<std::ptrdiff_t>(_source.width);
        for (std::ptrdiff_t i = 0; i < _reach; ++i) {
            extend(i - _reach, within(i - _reach, width, _beyond));
            extend(width + i, within(width + i, width, _beyond));
        }
        convolve(inside, _source.channels, _weights, blurred, _count);
    }

    void extend(std::ptrdiff_t x, std::ptrdiff_t from)
    {
        const auto channels = static_cast<std::ptrdiff_t>(_source.channels);
        Fixed* inside = _line.data() + margin();
        for (std::ptrdiff_t channel = 0; channel < channels; ++channel)
            inside[x * channels + channel] =
                from < 0 ? Fixed(0) : inside[from * channels + channel];
    }

    void writeRow(std::size_t bandRow, std::uint8_t* samples)
    {
        _row.resize(_count);
        convolve(&_band[(bandRow + rows()) * _count], _count, _weights, _row.data(), _count);
        constexpr unsigned half = 1U << (sampleBits - 1);
        for (std::size_t i = 0; i < _count; ++i)
            samples[i] = static_cast<std::uint8_t>((_row[i] + half) >> sampleBits);
    }

    const SampleRows<const std::uint8_t> _source;
    const SampleRows<std::uint8_t> _target;
    const std::vector<Fixed> _weights;
    const Beyond _beyond;
    const std::ptrdiff_t _reach;
    const std::size_t _count; ///< samples in a row
    std::vector<Fixed> _line;
    std::vector<Fixed> _band;
    std::vector<Fixed> _row;
};

} // namespace

void narrowBlur(const SampleRows<const std::uint8_t>& source,
                const SampleRows<std::uint8_t>& target, double deviation, Beyond beyond)
{
    Blur(source, target, deviation, beyond).run();
}

} // namespace pelmira
