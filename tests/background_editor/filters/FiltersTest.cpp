#include "background_editor/filters/GaussianBlur.h"
#include "background_editor/filters/ImageFilters.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Scene = std::function<int(int x, int y, int channel)>;

/// Rows with a tail that belongs to nobody.
struct Picture {
    static constexpr std::size_t tail = 5;

    Picture(int w, int h, int n) : width(w), height(h), channels(n), bytes(pitch() * h, 0xA5) {}
    std::size_t pitch() const { return std::size_t(width) * channels + tail; }
    std::uint8_t& at(int x, int y, int channel)
    {
        return bytes[y * pitch() + std::size_t(x) * channels + channel];
    }
    template <typename Byte>
    SampleRows<Byte> rows()
    {
        return {bytes.data(), std::size_t(width), std::size_t(height), pitch(),
                std::size_t(channels)};
    }

    Picture blurred(double deviation, Beyond beyond)
    {
        Picture result(width, height, channels);
        gaussianBlur(rows<const std::uint8_t>(), result.rows<std::uint8_t>(), deviation, beyond);
        return result;
    }

    int width;
    int height;
    int channels;
    Bytes bytes;
};

/// Along each line of `length` values; the result stands the other way round, as columns.
std::vector<double> blurredAlong(const std::vector<double>& values, int length, double deviation,
                                 Beyond beyond)
{
    const int reach = int(std::ceil(6 * deviation));
    std::vector<double> weights;
    double sum = 0;
    for (int i = -reach; i <= reach; ++i)
        sum += weights.emplace_back(std::exp(-0.5 * i * i / (deviation * deviation)));
    const std::size_t lines = values.size() / length;
    std::vector<double> result(values.size());
    for (int i = 0; i < length; ++i) {
        for (int j = -reach; j <= reach; ++j) {
            const auto from = within(i + j, length, beyond);
            for (std::size_t line = 0; from >= 0 && line < lines; ++line)
                result[i * lines + line] +=
                    weights[j + reach] / sum * values[line * length + std::size_t(from)];
        }
    }
    return result;
}

/// The sum as the formula has it, with nothing left out that could be seen: six deviations.
std::vector<double> exactBlur(Picture& picture, int channel, double deviation, Beyond beyond)
{
    std::vector<double> values;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            values.push_back(picture.at(x, y, channel));
    const auto sideways = blurredAlong(values, picture.width, deviation, beyond);
    return blurredAlong(sideways, picture.height, deviation, beyond);
}

double greatestError(Picture& source, Picture& blurred, double deviation, Beyond beyond)
{
    double greatest = 0;
    for (int channel = 0; channel < source.channels; ++channel) {
        const auto exact = exactBlur(source, channel, deviation, beyond);
        for (int y = 0; y < source.height; ++y)
            for (int x = 0; x < source.width; ++x)
                greatest = std::max(greatest, std::abs(blurred.at(x, y, channel) -
                                                       exact[std::size_t(y) * source.width + x]));
    }
    return greatest;
}

int wave(double phase)
{
    return int(std::lround(127.5 + 127.5 * std::sin(phase)));
}

// Edges, noise, single dots, and textures as fine as the grid on which a wide blur is made.
const std::pair<const char*, Scene> scenes[] = {
    {"edges", [](int x, int y, int c) { return (x > 60 + c) != (y > 30) ? 255 : 0; }},
    {"noise",
     [](int x, int y, int c) { return int(std::minstd_rand(x * 977 + y * 31 + c)() >> 8 & 255); }},
    {"dots", [](int x, int y, int) { return x % 41 < 2 && y % 29 < 2 ? 255 : 0; }},
    {"stripes", [](int x, int, int c) { return wave(x * (1.1 + 0.6 * c)); }},
    {"rings", [](int x, int y, int) { return wave((x * x + y * y) * 0.012); }},
};

TEST(GaussianBlur, IsWithinTwoLevelsOfTheExactSum)
{
    for (const auto& [name, scene] : scenes) {
        for (const double deviation : {0.4, 1.0, 2.7, 4.9, 5.0, 7.4, 12.0, 50.0}) {
            for (const auto& [beyond, channels] :
                 {std::pair(Beyond::Transparent, 1), {Beyond::EdgePixels, 4}, {Beyond::Tiles, 1}}) {
                Picture source(107, 64, channels);
                for (int y = 0; y < source.height; ++y)
                    for (int x = 0; x < source.width; ++x)
                        for (int c = 0; c < channels; ++c)
                            source.at(x, y, c) = std::uint8_t(scene(x, y, c));
                Picture blurred = source.blurred(deviation, beyond);
                EXPECT_LT(greatestError(source, blurred, deviation, beyond), 2.0)
                    << name << ", deviation " << deviation << ", edges " << int(beyond) << ", "
                    << channels << " channels";
                EXPECT_EQ(blurred.bytes.back(), 0xA5) << "written beyond the row";
            }
        }
    }
}

TEST(GaussianBlur, TakesAnySizeAndDeviation)
{
    for (const int width : {1, 2, 3, 40})
        for (const int height : {1, 2, 33})
            for (const double deviation : {-1.0, 0.0, std::nan(""), 1e-9, 3.0, 5.0, 80.0, 1e300}) {
                Picture source(width, height, 4);
                EXPECT_EQ(source.blurred(deviation, Beyond::EdgePixels).bytes, source.bytes)
                    << "a plain colour stays what it is";
            }
}

TEST(GaussianBlur, KeepsColourBelowItsAlpha)
{
    for (const double deviation : {0.7, 3.0, 9.0, 30.0}) {
        Picture source(64, 64, 4);
        std::minstd_rand random(7);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const int alpha = (x / 9 + y / 7) % 2 != 0 ? 255 : int(random() % 256);
                for (int c = 0; c < 4; ++c)
                    source.at(x, y, c) =
                        std::uint8_t(c == 3 ? alpha : alpha - int(random() % 2 & alpha));
            }
        }
        Picture blurred = source.blurred(deviation, Beyond::Transparent);
        int above = 0;
        for (int y = 0; y < 64; ++y)
            for (int x = 0; x < 64; ++x)
                for (int c = 0; c < 3; ++c)
                    above += blurred.at(x, y, c) > blurred.at(x, y, 3);
        EXPECT_EQ(above, 0) << deviation;
    }
}

QImage plain(QRgb premultiplied)
{
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(premultiplied);
    return image;
}

TEST(ImageFilters, ExposureCountsInStopsOfLinearLight)
{
    // Middle grey is 188 of 255 in sRGB; twice and half its light are white and 137.
    EXPECT_EQ(exposureAdjusted(plain(qRgb(188, 188, 188)), 1.0).pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_LE(
        farthest(exposureAdjusted(plain(qRgb(188, 0, 188)), -1.0).pixel(2, 1), qRgb(137, 0, 137)),
        1);
    // Half transparent: the same colour gets brighter, the alpha stays.
    EXPECT_LE(farthest(exposureAdjusted(plain(qRgba(50, 25, 0, 128)), 1.0).pixel(0, 0),
                       qPremultiply(qRgba(137, 70, 0, 128))),
              2);
    EXPECT_EQ(exposureAdjusted(plain(qRgb(1, 0, 9)), 1e9).pixel(0, 0), qRgb(255, 0, 255));
    EXPECT_EQ(exposureAdjusted(plain(qRgba(7, 3, 1, 9)), -1e9).pixel(0, 0), qRgba(0, 0, 0, 9));
}

TEST(ImageFilters, HueTurnsAboutGreyAndKeepsTheLuma)
{
    const auto luma = [](QRgb c) { return 0.213 * qRed(c) + 0.715 * qGreen(c) + 0.072 * qBlue(c); };
    const QRgb color = qRgb(140, 110, 120);
    for (const double turn : {0.25, 0.5, 0.8}) {
        const QRgb turned = hueAdjusted(plain(color), turn * 2 * std::numbers::pi).pixel(1, 1);
        EXPECT_NEAR(luma(turned), luma(color), 1.0) << turn;
        EXPECT_GT(farthest(turned, color), 10) << turn;
        const QRgb grey = qRgb(90, 90, 90);
        EXPECT_LE(farthest(hueAdjusted(plain(grey), turn).pixel(0, 0), grey), 1);
    }
    // A third of a turn takes red towards green, not towards blue.
    const QRgb third = hueAdjusted(plain(qRgb(200, 60, 60)), 2 * std::numbers::pi / 3).pixel(0, 0);
    EXPECT_GT(qGreen(third), qRed(third));
    EXPECT_GT(qGreen(third), qBlue(third));
    EXPECT_EQ(hueAdjusted(plain(qRgb(0, 0, 255)), 3.0).pixel(0, 0) >> 24, 255U);
    const QRgb clear = hueAdjusted(plain(qRgba(0, 0, 64, 64)), 2.0).pixel(0, 0);
    EXPECT_LE(std::max({qRed(clear), qGreen(clear), qBlue(clear)}), 64);
}

} // namespace
} // namespace pelmira
