#pragma once

#include "platform/pixels/PixelSpan.h"

#include <cstdint>
#include <random>
#include <vector>

namespace pelmira::testing {

/// Pixels whose rows are longer than the image, with guard rows before and after: whoever strays
/// changes a byte that stray() checks.
class PaddedImage {
public:
    static constexpr std::uint32_t GuardWord = 0xDEADBEEF;

    PaddedImage(std::uint32_t width, std::uint32_t height, std::uint32_t paddingPixels)
        : _words((width + paddingPixels) * (std::size_t{height} + 2) + 1, GuardWord),
          _span{_words.data() + width + paddingPixels, width, height, (width + paddingPixels) * 4}
    {
    }
    PaddedImage(const PaddedImage& other) : _words(other._words), _span(other._span)
    {
        _span.pixels = _words.data() + (other._span.pixels - other._words.data());
    }
    PaddedImage& operator=(const PaddedImage&) = delete;

    const PixelSpan& span() const { return _span; }
    std::uint32_t& at(std::uint32_t x, std::uint32_t y) { return _span.row(y)[x]; }
    std::uint32_t at(std::uint32_t x, std::uint32_t y) const { return _span.row(y)[x]; }
    std::uint8_t alpha(std::uint32_t x, std::uint32_t y) const
    {
        return static_cast<std::uint8_t>(at(x, y) >> 24);
    }
    const std::vector<std::uint32_t>& words() const { return _words; }

    bool hasStray() const
    {
        std::vector<bool> isImage(_words.size());
        const auto first = static_cast<std::size_t>(_span.pixels - _words.data());
        for (std::uint32_t y = 0; y < _span.height; ++y)
            for (std::uint32_t x = 0; x < _span.width; ++x)
                isImage[first + std::size_t{_span.bytesPerRow / 4} * y + x] = true;
        for (std::size_t i = 0; i < _words.size(); ++i)
            if (!isImage[i] && _words[i] != GuardWord)
                return true;
        return false;
    }

    template <typename Generate>
    void fill(Generate generate)
    {
        for (std::uint32_t y = 0; y < _span.height; ++y)
            for (std::uint32_t x = 0; x < _span.width; ++x)
                at(x, y) = generate(x, y);
    }

private:
    std::vector<std::uint32_t> _words;
    PixelSpan _span;
};

} // namespace pelmira::testing
