#include "platform/quick/ImageView.h"
#include "support/Test.h"

#include <QQuickWindow>
#include <QTest>

namespace pelmira {
namespace {

/// Every other column: a sampler that takes pixels here and there finds one colour or the other.
QImage stripes(QRgb odd, QRgb even)
{
    return paintedImage({801, 603}, [=](int x, int) { return x % 2 == 1 ? odd : even; });
}

class ImageViewInAWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        window.resize(200, 200);
        window.setColor(Qt::black);
        view.setParentItem(window.contentItem());
        view.setSize({50, 38});
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    /// Whether it comes to look like this all over, but for its edge.
    bool comesToShow(QRgb colour)
    {
        return QTest::qWaitFor(
            [&] {
                const QImage seen = window.grabWindow();
                const double scale = window.effectiveDevicePixelRatio();
                for (int y = 2; y < 36; ++y)
                    for (int x = 2; x < 48; ++x)
                        if (farthest(seen.pixel(int(x * scale), int(y * scale)), colour) > 3)
                            return false;
                return true;
            },
            60000);
    }

    QQuickWindow window;
    ImageView view;
};

TEST_F(ImageViewInAWindow, ShowsTheMeanOfWhatIsMuchLargerThanItself)
{
    view.setMipmap(true);
    view.setImage(stripes(qRgb(255, 0, 0), qRgb(0, 0, 255)));
    EXPECT_TRUE(comesToShow(qRgb(128, 0, 128)));
    view.setSoftEdges(true);
    // The first one's smaller copies come while the second is shown.
    view.setImage(stripes(qRgb(0, 0, 0), qRgb(0, 0, 0)));
    window.grabWindow();
    view.setImage(stripes(qRgb(0, 255, 0), qRgb(255, 255, 255)));
    EXPECT_TRUE(comesToShow(qRgb(128, 255, 128)));
    // Gone before its copies are there.
    view.setImage(stripes(qRgb(255, 255, 255), qRgb(255, 255, 255)));
    window.grabWindow();
    view.setImage({});
    EXPECT_TRUE(comesToShow(qRgb(0, 0, 0)));
}

TEST_F(ImageViewInAWindow, CoversARoundedPlaceWithoutBeingStretched)
{
    const QImage image = paintedImage({801, 603}, [](int x, int) {
        const bool isBesideItsSquare = std::abs(x - 400) > 302;
        return isBesideItsSquare ? qRgb(255, 0, 0) : qRgb(0, 255, 0);
    });
    view.setSize({50, 50});
    view.setRadius(1);
    view.setCovers(true);
    view.setImage(image);
    EXPECT_TRUE(comesToShow(qRgb(0, 255, 0)));
}

} // namespace
} // namespace pelmira
