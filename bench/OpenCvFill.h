#pragma once

#include "platform/pixels/PixelSpan.h"

#include <QPoint>
#include <cstdint>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <vector>

namespace pelmira::bench {

/// The same re-fill with OpenCV's floodFill, fixed range and 4-connected: mask cleared, fill, one
/// pass that writes alpha from the mask and the backup.
class OpenCvFill {
public:
    /// On the three colour channels of an opaque image.
    static OpenCvFill onColors(const PixelSpan& pixels, QPoint start)
    {
        const cv::Mat bgra(static_cast<int>(pixels.height), static_cast<int>(pixels.width), CV_8UC4,
                           pixels.pixels, pixels.bytesPerRow);
        OpenCvFill fill(pixels, start);
        cv::cvtColor(bgra, fill._image, cv::COLOR_BGRA2BGR);
        return fill;
    }

    /// On a plane of distances from the start's colour.
    static OpenCvFill onDistances(const PixelSpan& pixels, QPoint start, std::uint8_t* distances)
    {
        OpenCvFill fill(pixels, start);
        fill._image = cv::Mat(static_cast<int>(pixels.height), static_cast<int>(pixels.width),
                              CV_8UC1, distances);
        return fill;
    }

    void setTolerance(int tolerance)
    {
        _mask.setTo(0);
        // Its limit is inclusive, ours is strict.
        const cv::Scalar limit = cv::Scalar::all(tolerance - 1);
        if (tolerance > 0)
            cv::floodFill(_image, _mask, cv::Point(_start.x(), _start.y()), cv::Scalar(), nullptr,
                          limit, limit,
                          4 | cv::FLOODFILL_FIXED_RANGE | cv::FLOODFILL_MASK_ONLY | 255 << 8);
        for (std::uint32_t y = 0; y < _pixels.height; ++y)
            writeAlpha(_pixels.row(y), _mask.ptr(static_cast<int>(y) + 1) + 1,
                       _alpha.data() + std::size_t{_pixels.width} * y, _pixels.width);
    }

private:
    OpenCvFill(const PixelSpan& pixels, QPoint start)
        : _pixels(pixels), _start(start),
          _mask(static_cast<int>(pixels.height) + 2, static_cast<int>(pixels.width) + 2, CV_8UC1),
          _alpha(std::size_t{pixels.width} * pixels.height, 255)
    {
    }

    static void writeAlpha(std::uint32_t* __restrict pixels, const std::uint8_t* __restrict mask,
                           const std::uint8_t* __restrict alpha, std::uint32_t width)
    {
        for (std::uint32_t x = 0; x < width; ++x)
            pixels[x] = (pixels[x] & 0xFFFFFFU) |
                        std::uint32_t{static_cast<std::uint8_t>(alpha[x] & ~mask[x])} << 24;
    }

    PixelSpan _pixels;
    QPoint _start;
    cv::Mat _image;
    cv::Mat _mask;
    std::vector<std::uint8_t> _alpha;
};

} // namespace pelmira::bench
