#include "background_editor/colors/BGEColorView.h"
#include "background_editor/colors/ZKLRGBMixerVC.h"
#include "support/Test.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace pelmira {
namespace {

TEST(Favourites, StoredOnesOfAnotherShapeAreDroppedForGood)
{
    const TemporaryFolder folder;
    for (const char* stored : {"[0.1, 0.2]", R"([0.1, "red", 0.3])", "[0.1, 1e300, 0.3]", "7",
                               R"({"r": 1})", "[[0.1, 0.2, 0.3]]", "[null, null, null]"}) {
        SCOPED_TRACE(stored);
        UserDefaults defaults(
            folder.write("preferences.json",
                         QByteArray(R"({"saveAsHeif": true, "savedColors": )") + stored + "}"));
        ZKLPersistedColorsModel model(defaults);
        EXPECT_TRUE(model.colors().empty());
        const QJsonObject kept =
            QJsonDocument::fromJson(folder.read(folder.path("preferences.json"))).object();
        EXPECT_FALSE(kept.contains(QStringLiteral("savedColors")));
        EXPECT_TRUE(kept.contains(QStringLiteral("saveAsHeif")));
    }
}

TEST(Favourites, TheNewestComesFirstAndTheThirtyFirstFallsOff)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path("preferences.json"));
    {
        ZKLPersistedColorsModel model(defaults);
        for (int i = 0; i < 31; ++i)
            model.add(float(i) / 255.0F + 0.001F, 0.5F, 0.0F);
        ASSERT_EQ(model.colors().size(), 30U);
        EXPECT_NEAR(model.colors().back().r, 1.0F / 255.0F + 0.001F, 1e-6F);
        model.add(1.0F / 255.0F + 0.002F, 0.5F, 0.0F); // looks like the last one
        EXPECT_EQ(model.colors().size(), 30U);
        EXPECT_NEAR(model.colors().back().r, 2.0F / 255.0F + 0.001F, 1e-6F);
    }
    ZKLPersistedColorsModel again(defaults); // the newer value of the two is kept
    ASSERT_EQ(again.colors().size(), 30U);
    EXPECT_EQ(again.colors().front().r, 1.0F / 255.0F + 0.002F);
}

TEST(Mixer, AFavouriteIsTakenWithoutMovingIt)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path("preferences.json"));
    ZKLRGBMixerVC mixer(0.5F, 0.5F, 0.5F, defaults);
    int reports = 0;
    mixer.colorChangedBlock = [&] { ++reports; };
    mixer.handleFavouriteButton();
    mixer.rSlider()->moveTo(1.0);
    EXPECT_EQ(mixer.hexLabel(), QStringLiteral("0xFF8080"));
    mixer.handleFavouriteButton();
    ASSERT_EQ(mixer.favouriteColorViews().size(), 2);
    for (const int none : {-1, 2, 1})
        mixer.handleFavouriteTapped(none);
    EXPECT_EQ(mixer.r, 0.5F);
    EXPECT_EQ(mixer.rSlider()->value(), 0.5F);
    EXPECT_EQ(reports, 2);
    EXPECT_EQ(mixer.persistedColors().colors().front().r, 1.0F);
}

TEST(Pickers, WhatTheyShowIsWhatTheyPickAndPlacesBeyondCountAsTheEdge)
{
    BGEColorView panel;
    std::vector<QColor> reported;
    panel.colorChangedBlock = [&](const QColor& color) { reported.push_back(color); };
    const QImage strip = ColorPickerLineView::image();
    for (int x = 0; x < strip.width(); x += 7) {
        panel.colorPickerLineView()->pick((x + 0.5) / strip.width());
        EXPECT_EQ(reported.back().rgb(), strip.pixel(x, 0)) << x;
    }
    ColorPickerView& picker = *panel.colorPickerView();
    picker.pickSaturation(0.7);
    const QImage field = picker.field();
    for (int y = 0; y < field.height(); y += 9) {
        for (int x = 0; x < field.width(); x += 17) {
            picker.pickInField({x / (field.width() - 1.0), y / (field.height() - 1.0)});
            EXPECT_EQ(reported.back().rgb(), field.pixel(x, y)) << x << ' ' << y;
        }
    }

    ColorPickerLineView& line = *panel.colorPickerLineView();
    line.pick(-3);
    EXPECT_EQ(line.color(), QColor(Qt::white));
    line.pick(7);
    EXPECT_EQ(line.color(), QColor(Qt::black));
    line.pick(qQNaN());
    EXPECT_EQ(line.position(), 1.0);
    picker.pickSaturation(1.0);
    picker.pickInField({2.0, 0.5});
    EXPECT_EQ(picker.color().rgb(), qRgb(255, 0, 0)); // the hues close their circle
    picker.pickInField({0.5, -1.0});
    EXPECT_EQ(picker.color().rgb(), qRgb(255, 255, 255));
    picker.pickInField({0.5, qQNaN()});
    EXPECT_EQ(picker.lightness(), 1.0);
}

} // namespace
} // namespace pelmira
