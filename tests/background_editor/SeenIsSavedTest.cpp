#include "background_editor/BackgroundEditor.h"
#include "support/ShownScreen.h"

#include <QPainter>

namespace pelmira {
namespace {

/// A disc with a soft edge, and marks that tell which way round it is.
QImage cutOut()
{
    QImage image = plainImage({900, 600}, Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 60, 40));
    painter.drawEllipse(20, 20, 860, 560);
    painter.setBrush(QColor(40, 80, 220));
    painter.drawRect(150, 200, 200, 120);
    painter.setBrush(QColor(240, 230, 80, 160));
    painter.drawEllipse(550, 300, 200, 180);
    return image;
}

QImage photo()
{
    return paintedImage({500, 300},
                        [](int x, int y) { return qRgb(x / 2, 255 - y / 2, (x + y) / 4); });
}

struct SeenIsSaved : testing::Test, test::BackgroundEditor {
    SeenIsSaved() : BackgroundEditor({480, 760}) {}
    void SetUp() override
    {
        screen->setFgImage(cutOut());
        shown.emplace(screen, QSize(480, 760));
    }

    /// The canvas as the window shows it.
    QImage grabCanvas()
    {
        QImage window = shown->window.grabWindow();
        window.setDevicePixelRatio(1.0);
        const double scale = shown->window.effectiveDevicePixelRatio();
        const QRectF canvas = screen->workAreaView()->bgImageView()->frame().translated(
            screen->workAreaFrame().topLeft());
        return window.copy(QRectF(canvas.topLeft() * scale, canvas.size() * scale).toRect());
    }

    /// Once what moves on the screen has come to rest.
    void expectSeenIsSaved()
    {
        const QImage saved = renderComposition(*screen->composition());
        test::Difference apart;
        const bool isTheSame = waitFor([&] {
            const QImage seen = grabCanvas();
            apart = test::difference(
                seen, saved.scaled(seen.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            return !seen.isNull() && apart.mean < 2.0 && apart.visible < 0.01;
        });
        EXPECT_TRUE(isTheSame) << apart.mean << ' ' << apart.visible;
    }

    std::optional<test::ShownScreen> shown;
};

TEST_F(SeenIsSaved, ForRatiosTurnsFlipsAndStretches)
{
    const struct {
        double ratio;
        double rotation;
        bool isFlipped;
        QSizeF size;
        QPointF fromMiddle;
    } poses[] = {
        {1.0, 0.0, false, {300, 200}, {0, 0}},
        {0.8, 0.6, false, {300, 200}, {30, -40}},
        {16.0 / 9.0, -2.2, true, {260, 120}, {-60, 20}},
        {4.0 / 3.0, std::acos(-1.0) / 2, false, {120, 240}, {10, 10}},
        {0.5625, 0.0, true, {500, 330}, {90, 60}}, // beyond the edge
    };
    screen->background().setSolidBackground(QColor(120, 200, 160));
    for (const bool withPhoto : {false, true}) {
        if (withPhoto)
            screen->background().setBackgroundImage(photo());
        for (const auto& pose : poses) {
            SCOPED_TRACE(testing::Message() << pose.ratio << (withPhoto ? " photo" : " colour"));
            BGEWorkAreaView& area = *screen->workAreaView();
            area.bgAspectRatio = pose.ratio;
            area.layoutSubviews();
            StickerView& sticker = *area.fgStickerView();
            if (sticker.contentViewHFlip() != pose.isFlipped)
                sticker.handleTapOnFlipWithRecognizer();
            sticker.setBounds(pose.size);
            sticker.setRotation(pose.rotation);
            sticker.setCenter(area.bgImageView()->frame().center() + pose.fromMiddle);
            expectSeenIsSaved();
        }
    }
}

TEST_F(SeenIsSaved, WithAShadow)
{
    ShadowValues shadow;
    shadow.shadowOffset = {0.6, 0.8};
    shadow.shadowBlur = 0.4;
    screen->depthPanels()->setShadowValues(shadow);
    ASSERT_TRUE(waitFor([this] { return !screen->shadow()->image().isNull(); }));
    StickerView& sticker = *screen->workAreaView()->fgStickerView();
    sticker.setBounds({240, 160});
    sticker.setRotation(0.5);
    expectSeenIsSaved();
}

} // namespace
} // namespace pelmira
