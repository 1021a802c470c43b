#include "background_editor/canvas/BGECanvasView.h"
#include "background_editor/canvas/BGEWorkAreaView.h"
#include "background_editor/canvas/RatioIcon.h"
#include "background_editor/composition/Composition.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <set>
#include <string>

namespace pelmira {
namespace {

const QSizeF phone(390, 844);

struct RatioRow {
    const char16_t* title;
    std::uint32_t bits;
    QSize output;
};
constexpr std::array<RatioRow, aspectRatioButtonCount> ratioRows{{
    {u"1:1", 0x3f800000, {2048, 2048}},    {u"4:5", 0x3f4ccccd, {1639, 2048}},
    {u"4:3", 0x3faaaaab, {2048, 1536}},    {u"828x315", 0x40283a84, {2048, 780}},
    {u"2:1", 0x40000000, {2048, 1024}},    {u"5:7", 0x3f36db6e, {1463, 2048}},
    {u"16:9", 0x3fe38e39, {2048, 1152}},   {u"SCREEN", 0x3eec9672, {947, 2048}},
    {u"8.5x11", 0x3f45d174, {1583, 2048}}, {u"11x8.5", 0x3fa5a5a6, {2048, 1583}},
    {u"A4", 0x3f350565, {1449, 2048}},     {u" A4 ", 0x3fb50481, {2048, 1449}},
    {u"7:5", 0x3fb33333, {2048, 1463}},    {u"6:4", 0x3fc00000, {2048, 1366}},
    {u"5:3", 0x3fd55555, {2048, 1229}},    {u"10:8", 0x3fa00000, {2048, 1639}},
    {u"3:4", 0x3f400000, {1536, 2048}},    {u"4:6", 0x3f2aaaab, {1366, 2048}},
    {u"3:5", 0x3f19999a, {1229, 2048}},    {u"9:16", 0x3f100000, {1152, 2048}},
}};

TEST(AspectRatio, EachHasItsValueItsOutputAndItsTitle)
{
    for (const AspectRatio ratio : BGECanvasView::ratios) {
        const RatioRow& row = ratioRows[static_cast<std::size_t>(ratio)];
        SCOPED_TRACE(QStringView(row.title).toString().toStdString());
        EXPECT_EQ(rawValue(ratio), row.title);
        EXPECT_EQ(aspectRatioWithRawValue(row.title), ratio);
        const float value = ratioValue(ratio, phone);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(value), row.bits);
        EXPECT_EQ(outputSize(double(value)), row.output);
    }
    EXPECT_EQ(ratioValue(AspectRatio::RatioScreen, phone.transposed()),
              ratioValue(AspectRatio::RatioScreen, phone));
    EXPECT_EQ(aspectRatioWithRawValue(u"?:?"), AspectRatio::RatioCustom);
    EXPECT_EQ(aspectRatioWithRawValue(u"4:9"), std::nullopt);
    EXPECT_EQ(outputSize(4.0 / 3.0), QSize(2048, 1536));
    EXPECT_EQ(outputSize(1e-9), QSize(1, 2048));
}

TEST(AspectRatio, TheIconIsAFrameOfTheRatioWithItsPictogram)
{
    const auto alphaAt = [](const QImage& icon, double x, double y) {
        const double scale = icon.devicePixelRatio();
        return qAlpha(icon.pixel(int(x * scale), int(y * scale)));
    };
    const QImage wide = makeRatioIcon(AspectRatio::RatioTwitter2x1, phone);
    EXPECT_GT(alphaAt(wide, 0.5, 22), 200);
    EXPECT_GT(alphaAt(wide, 22, 11.5), 200);
    EXPECT_EQ(alphaAt(wide, 22, 5), 0);
    for (const AspectRatio ratio : BGECanvasView::ratios) {
        const QImage icon = makeRatioIcon(ratio, phone);
        int inside = 0;
        for (int y = 15; y < 29; ++y)
            for (int x = 15; x < 29; ++x)
                inside += alphaAt(icon, x, y) > 0;
        EXPECT_EQ(inside > 0, overlayImageName(ratio) != nullptr)
            << rawValue(ratio).toString().toStdString();
    }
}

struct Layout {
    QSizeF bounds;
    double ratio;
    QRectF canvas;
};

TEST(WorkArea, TheCanvasIsAsLargeAsItsRatioAllowsWithMasksAround)
{
    const Layout layouts[] = {
        {{400, 300}, 4.0 / 3.0, {0, 0, 400, 300}},
        {{390, 501}, 16.0 / 9.0, {0, 141, 390, 219}}, // 219.375
        {{391, 300}, 0.5, {120.5, 0, 150, 300}},      // it may lie on a half
    };
    for (const Layout& layout : layouts) {
        BGEWorkAreaView area;
        area.bgAspectRatio = layout.ratio;
        area.setBounds(layout.bounds);
        const QRectF f = area.bgImageView()->frame();
        EXPECT_EQ(f, layout.canvas);
        const double w = layout.bounds.width();
        const double h = layout.bounds.height();
        EXPECT_EQ(area.topMaskFrame(), QRectF(0, 0, w, f.top()));
        EXPECT_EQ(area.bottomMaskFrame(), QRectF(0, f.bottom(), w, h - f.top()));
        EXPECT_EQ(area.leftMaskFrame(), QRectF(0, f.top(), f.left(), f.height()));
        EXPECT_EQ(area.rightMaskFrame(), QRectF(f.right(), f.top(), w - f.right(), f.height()));
    }
}

TEST(WorkArea, AChangeOfRatioOrSizeLeavesTheObjectAlone)
{
    BGEWorkAreaView area;
    area.setBounds({400, 300});
    const QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    area.setFgStickerView(
        std::make_unique<StickerView>(image, nullptr, QPointF(200, 150), 0.0, 100.0));
    area.bgAspectRatio = 0.5;
    area.layoutSubviews(true);
    EXPECT_TRUE(area.animatesLayout());
    area.setBounds({300, 500});
    EXPECT_FALSE(area.animatesLayout());
    area.setBounds({}); // a window that has no room
    EXPECT_EQ(area.fgStickerView()->center(), QPointF(200, 150));
    EXPECT_EQ(area.fgStickerView()->bounds(), QSizeF(100, 100));
}

struct Strip : testing::Test {
    std::set<std::u16string> lit() const
    {
        std::set<std::u16string> titles;
        for (const StripButton* button : panel.buttons())
            if (button->isSelected())
                titles.insert(button->title().toStdU16String());
        return titles;
    }
    QSizeF screen = phone;
    BGECanvasView panel{[this] { return screen; }};
};

TEST_F(Strip, ButtonsLightUpThatLieCloseToTheRatio)
{
    using Titles = std::set<std::u16string>;
    EXPECT_EQ(lit(), Titles{u"1:1"});
    panel.setAspectRatio(float(4.0 / 3.0));
    EXPECT_EQ(lit(), Titles{u"4:3"});
    panel.setAspectRatio(1.503F);
    EXPECT_EQ(lit(), Titles{u"6:4"});
    panel.setAspectRatio(1.51F);
    EXPECT_EQ(lit(), Titles{});
    screen = {600, 800}; // the window went to another screen
    panel.setAspectRatio(0.75F);
    EXPECT_EQ(lit(), (Titles{u"3:4", u"SCREEN"}));
}

TEST_F(Strip, APressReportsTheRatioAsItIsHeld)
{
    double reported = 0;
    panel.aspectRatioChangedBlock = [&](float ratio) { reported = double(ratio); };
    panel.handleAspectThumbButtonWithButton(panel.buttons()[2]);
    EXPECT_EQ(reported, 1.3333333730697632);
    EXPECT_EQ(lit(), std::set<std::u16string>{u"4:3"});
    panel.handleAspectThumbButtonWithButton(nullptr);
    EXPECT_EQ(reported, 1.3333333730697632);
}

TEST_F(Strip, ButtonsAreSquaresSideBySide)
{
    panel.setStripHeight(60);
    EXPECT_EQ(panel.contentSize(), QSizeF(1284, 60));
    EXPECT_EQ(panel.buttons()[0]->frame(), QRectF(4, 0, 60, 60));
    EXPECT_EQ(panel.buttons()[19]->frame(), QRectF(4 + 19 * 64, 0, 60, 60));
}

} // namespace
} // namespace pelmira
