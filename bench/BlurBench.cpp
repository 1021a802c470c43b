// The Gaussian of the background editor against OpenCV's, on the same pictures in the same run, one
// thread each, in CPU time; and how far it is from the exact sum.

#include "Bench.h"

#include "background_editor/filters/GaussianBlur.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-enum-enum-conversion"
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#pragma GCC diagnostic pop

#include <cmath>
#include <ctime>
#include <functional>
#include <random>

namespace {

using namespace pelmira;

constexpr int side = 1024;
constexpr double deviations[] = {1, 2, 4, 5, 7, 10, 20, 35, 50};
constexpr double figuresFor = 50;

double cpuMilliseconds(const std::function<void()>& function)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
    };
    const double start = now();
    function();
    return now() - start;
}

struct Scene {
    const char* name;
    std::function<int(int x, int y, int channel)> value;
};

int wave(double phase)
{
    return static_cast<int>(std::lround(127.5 + 127.5 * std::sin(phase)));
}

std::vector<Scene> scenes()
{
    auto random = std::make_shared<std::mt19937>(1);
    return {
        {"noise", [random](int, int, int) { return static_cast<int>((*random)() & 255); }},
        {"edges", [](int x, int y, int) { return (x > 500) != (y > 300) ? 255 : 0; }},
        {"checks", [](int x, int y, int) { return (x / 8 + y / 9) % 2 != 0 ? 255 : 0; }},
        {"stripes", [](int x, int, int c) { return wave(x * (0.3 + 0.2 * c)); }},
        {"rings", [](int x, int y, int) { return wave((x * x + y * y) * 0.0015); }},
        {"dots", [](int x, int y, int) { return x % 97 < 3 && y % 89 < 3 ? 255 : 0; }},
    };
}

cv::Mat drawn(const Scene& scene)
{
    cv::Mat image(side, side, CV_8UC4);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            for (int c = 0; c < 4; ++c)
                image.at<cv::Vec4b>(y, x)[c] = static_cast<uchar>(scene.value(x, y, c));
    return image;
}

cv::Mat blurred(const cv::Mat& image, double deviation)
{
    cv::Mat result(image.size(), image.type());
    gaussianBlur({image.data, side, side, image.step[0], 4},
                 {result.data, side, side, result.step[0], 4}, deviation, Beyond::EdgePixels);
    return result;
}

/// Largest difference, in levels, from a sum in single precision that reaches six deviations far.
double error(const cv::Mat& image, const cv::Mat& result, double deviation)
{
    cv::Mat exact;
    image.convertTo(exact, CV_32F);
    const int taps = 2 * static_cast<int>(std::ceil(6 * deviation)) + 1;
    const cv::Mat kernel = cv::getGaussianKernel(taps, deviation, CV_32F);
    cv::sepFilter2D(exact, exact, CV_32F, kernel, kernel, cv::Point(-1, -1), 0,
                    cv::BORDER_REPLICATE);
    cv::Mat ours;
    result.convertTo(ours, CV_32F);
    return cv::norm(exact, ours, cv::NORM_INF);
}

} // namespace

int main()
{
    cv::setNumThreads(1);
    std::printf("%d x %d, four channels; milliseconds of CPU, median of 5\n", side, side);
    std::printf("%9s %9s %9s %9s %12s\n", "deviation", "ours", "OpenCV", "ratio", "error/levels");
    double ratio = 0;
    double greatestError = 0;
    for (const double deviation : deviations) {
        std::vector<double> ours;
        std::vector<double> theirs;
        double errorHere = 0;
        for (const Scene& scene : scenes()) {
            const cv::Mat image = drawn(scene);
            cv::Mat result;
            cv::Mat other;
            for (int run = 0; run < (ours.empty() ? 5 : 1); ++run) {
                ours.push_back(cpuMilliseconds([&] { result = blurred(image, deviation); }));
                theirs.push_back(cpuMilliseconds([&] {
                    cv::GaussianBlur(image, other, {}, deviation, deviation, cv::BORDER_REPLICATE);
                }));
            }
            errorHere = std::max(errorHere, error(image, result, deviation));
        }
        const double here = bench::median(ours) / bench::median(theirs);
        std::printf("%9.0f %9.2f %9.2f %9.3f %12.2f\n", deviation, bench::median(ours),
                    bench::median(theirs), here, errorHere);
        if (deviation == figuresFor)
            ratio = here;
        greatestError = std::max(greatestError, errorHere);
    }
    bench::printFigure("blur_vs_opencv_time", ratio);
    bench::printFigure("blur_max_error_levels", greatestError);
}
