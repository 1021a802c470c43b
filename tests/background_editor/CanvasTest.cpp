#include "background_editor/canvas/BGECanvasView.h"
#include "background_editor/canvas/BGEWorkAreaView.h"
#include "background_editor/composition/Composition.h"
#include "support/Test.h"

namespace pelmira {
namespace {

const QSizeF phone(390, 844);

/// As the title says it; nothing where it is a name.
std::optional<double> ratioInTitle(QStringView title)
{
    const QStringList sides = title.toString().replace(u'x', u':').split(u':');
    if (sides.size() != 2)
        return std::nullopt;
    return sides[0].toDouble() / sides[1].toDouble();
}

TEST(AspectRatio, EachHasTheValueOfItsTitleAndAnOutputOfThatShape)
{
    std::set<QStringView> titles;
    for (const AspectRatio ratio : BGECanvasView::ratios) {
        const QStringView title = rawValue(ratio);
        SCOPED_TRACE(title.toString().toStdString());
        EXPECT_TRUE(titles.insert(title).second);
        EXPECT_EQ(aspectRatioWithRawValue(title), ratio);
        const float value = ratioValue(ratio, phone);
        if (const auto wanted = ratioInTitle(title)) {
            EXPECT_EQ(value, float(*wanted));
        }
        const QSize output = outputSize(double(value));
        EXPECT_EQ(std::max(output.width(), output.height()), 2048);
        const double shorter = 2048 * std::min(double(value), 1 / double(value));
        EXPECT_EQ(std::min(output.width(), output.height()), std::ceil(shorter));
    }
    EXPECT_NEAR(ratioValue(AspectRatio::RatioA4Portrait, phone), std::sqrt(0.5), 1e-4);
    EXPECT_EQ(ratioValue(AspectRatio::RatioScreen, phone), float(390.0 / 844.0));
    EXPECT_EQ(ratioValue(AspectRatio::RatioScreen, phone.transposed()), float(390.0 / 844.0));
    EXPECT_EQ(aspectRatioWithRawValue(u"?:?"), AspectRatio::RatioCustom);
    EXPECT_EQ(aspectRatioWithRawValue(u"4:9"), std::nullopt);
    EXPECT_EQ(outputSize(4.0 / 3.0), QSize(2048, 1536));
    EXPECT_EQ(outputSize(1e-9), QSize(1, 2048));
}

TEST(WorkArea, TheCanvasIsAsLargeAsItsRatioAllowsWithMasksAround)
{
    const struct {
        QSizeF bounds;
        double ratio;
        QRectF canvas;
    } layouts[] = {
        {{400, 300}, 4.0 / 3.0, {0, 0, 400, 300}},
        {{390, 501}, 16.0 / 9.0, {0, 141, 390, 219}}, // 219.375
        {{391, 300}, 0.5, {120.5, 0, 150, 300}},      // it may lie on a half
        {{391, 300}, 1.0 / 4000, {195, 0, 1, 300}},   // a photo of a column or two
    };
    for (const auto& layout : layouts) {
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

TEST(Strip, ButtonsLightUpThatLieCloseToTheRatio)
{
    QSizeF screen = phone;
    BGECanvasView panel([&] { return screen; });
    const auto lit = [&](double ratio = 0) {
        if (ratio > 0)
            panel.setAspectRatio(float(ratio));
        QStringList titles;
        for (const StripButton* button : panel.buttons())
            if (button->isSelected())
                titles << button->title();
        return titles.join(u' ');
    };
    EXPECT_EQ(lit(), u"1:1");
    EXPECT_EQ(lit(4.0 / 3.0), u"4:3");
    EXPECT_EQ(lit(1.503), u"6:4");
    EXPECT_EQ(lit(1.51), u"");
    screen = {600, 800}; // the window went to another screen
    EXPECT_EQ(lit(0.75), u"SCREEN 3:4");
}

} // namespace
} // namespace pelmira
