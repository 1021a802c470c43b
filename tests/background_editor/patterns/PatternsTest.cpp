#include "background_editor/patterns/BGEPatternView.h"
#include "background_editor/patterns/PatternMakers.h"
#include "background_editor/patterns/ZKLPatterns.h"
#include "support/Test.h"

#include <QPainter>

namespace pelmira {
namespace {

const auto library = ZKLPatterns::shared;
std::vector<PatternScene> scenes()
{
    std::vector<PatternScene> all;
    for (const auto& family : {dotPatterns(), stripePatterns(), geometricPatterns(),
                               naturePatterns(), playfulPatterns()})
        for (const PatternMaker& maker : family)
            all.push_back(maker.make());
    return all;
}

/// Mean difference between the last column and the first, against the largest within three columns
/// inside: there an edge may lie between pixels.
void expectNoSeam(const QImage& tile, const std::string& name)
{
    const auto step = [&tile](int x) {
        double sum = 0;
        for (int y = 0; y < tile.height(); ++y)
            sum += farthest(tile.pixel(x, y), tile.pixel((x + 1) % tile.width(), y));
        return sum / tile.height();
    };
    double largest = 0;
    for (int x = 0; x + 2 < tile.width(); ++x)
        largest = std::max(largest, step(x) + step(x + 1));
    EXPECT_LE(step(tile.width() - 1), largest + 1.0) << name;
}

TEST(ZKLPatterns, EveryTileIsSeamlessAndOpaqueAtAnyScale)
{
    const auto names = library().patternNames();
    const auto drawn = scenes();
    ASSERT_GE(names.size(), 24);
    ASSERT_EQ(names.size(), drawn.size());
    for (int i = 0; i < names.size(); ++i) {
        for (const double scale : {0.38, 1.0, 2.0}) {
            const std::string name = names[i].toStdString() + " at " + std::to_string(scale);
            const auto tile = library().imageForName(names[i], scale);
            ASSERT_TRUE(tile) << name;
            const QSizeF units = drawn[i].tile();
            EXPECT_NEAR(tile->width(), units.width() * scale, 3.0) << name;
            EXPECT_NEAR(tile->height(), units.height() * scale, 3.0) << name;
            expectNoSeam(*tile, name);
            expectNoSeam(tile->transformed(QTransform().rotate(90)), name);

            // A tile begun elsewhere has the edges of this one in its middle, drawn in one go
            // there.
            const QPoint shift(tile->width() / 2 + 1, tile->height() / 3);
            QImage other(tile->size(), tile->format());
            {
                QPainter painter(&other);
                painter.translate(-shift);
                painter.scale(tile->width() / units.width(), tile->height() / units.height());
                const QPointF origin(shift.x() * units.width() / tile->width(),
                                     shift.y() * units.height() / tile->height());
                drawn[i].paint(painter, QRectF(origin, units));
            }
            bool isOpaque = true;
            const QImage moved = paintedImage(tile->size(), [&](int x, int y) {
                const QRgb here =
                    tile->pixel((x + shift.x()) % tile->width(), (y + shift.y()) % tile->height());
                isOpaque &= qAlpha(here) == 255;
                return here;
            });
            EXPECT_TRUE(isOpaque) << name;
            EXPECT_LE(test::difference(moved, other).greatest, 12) << name;
        }
    }
}

TEST(ZKLPatterns, WhatCantBeDrawnIsNoImage)
{
    const QString name = library().patternNames().first();
    for (const double scale :
         {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity(), 1e6})
        EXPECT_FALSE(library().imageForName(name, scale)) << scale;
    EXPECT_TRUE(library().imageForName(name, 1e-9));
    EXPECT_FALSE(library().imageForName(QStringLiteral("none"), 1.0));
    EXPECT_TRUE(library().thumbnailForName(QString()).isNull());
}

TEST(BGEPatternView, APickMovesTheBorderAndIsReported)
{
    BGEPatternView panel;
    BGEPatternCell* first = panel.cellForItem(0);
    BGEPatternCell* third = panel.cellForItem(2);
    panel.didSelectItem(2); // nobody to tell: the border moves all the same
    EXPECT_GT(third->borderWidth(), 0.0);

    std::vector<int> picked;
    panel.patternChangedBlock = [&picked](int item) { picked.push_back(item); };
    for (const int item : {0, 0, -1, 9999})
        panel.didSelectItem(item);
    EXPECT_EQ(picked, (std::vector{0, 0}));
    EXPECT_TRUE(first->mySelected());
    EXPECT_EQ(third->borderWidth(), 0.0);
    panel.didSelectItem(5); // not shown yet
    EXPECT_TRUE(panel.cellForItem(5)->mySelected());
    EXPECT_FALSE(first->mySelected());
    EXPECT_EQ(panel.cellForItem(9999), nullptr);
}

TEST(BGEPatternView, ThumbnailsComeWhereTheyAreShown)
{
    auto panel = std::make_unique<BGEPatternView>();
    BGEPatternCell* cell = panel->cellForItem(1);
    EXPECT_TRUE(cell->image().isNull());
    ASSERT_TRUE(drainUntil([cell] { return !cell->image().isNull(); }));
    EXPECT_EQ(cell->image(), library().thumbnailForName(library().patternNames().at(1)));
    for (int item = 0; item < panel->rowCount(); ++item)
        panel->cellForItem(item);
    panel.reset(); // while they are being drawn
    BGEPatternView next;
    ASSERT_TRUE(drainUntil([&] { return !next.cellForItem(0)->image().isNull(); }));
}

} // namespace
} // namespace pelmira
