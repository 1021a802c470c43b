#include "SamplePhoto.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace pelmira {
namespace {

QColor turned(const QColor& color, int number)
{
    return QColor::fromHsv((color.hue() + number * 53) % 360, color.saturation(), color.value());
}

} // namespace

QImage samplePhoto(int number)
{
    constexpr int width = 1600;
    constexpr int height = 1200;
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    QLinearGradient backdrop(0, 0, 0, height);
    backdrop.setColorAt(0, turned(QColor(208, 220, 230), number));
    backdrop.setColorAt(1, turned(QColor(184, 198, 212), number));
    painter.fillRect(image.rect(), backdrop);

    QRadialGradient shadow(QPointF(830, 1010), 420);
    shadow.setColorAt(0, QColor(60, 70, 84, 150));
    shadow.setColorAt(1, QColor(60, 70, 84, 0));
    painter.save();
    painter.translate(0, 808);
    painter.scale(1, 0.2);
    painter.setBrush(shadow);
    painter.drawEllipse(QPointF(830, 1010), 420, 420);
    painter.restore();

    QPainterPath pear(QPointF(800, 200));
    pear.cubicTo(900, 200, 930, 320, 950, 440);
    pear.cubicTo(980, 580, 1120, 640, 1120, 800);
    pear.cubicTo(1120, 960, 990, 1030, 800, 1030);
    pear.cubicTo(610, 1030, 480, 960, 480, 800);
    pear.cubicTo(480, 640, 620, 580, 650, 440);
    pear.cubicTo(670, 320, 700, 200, 800, 200);
    QRadialGradient skin(QPointF(720, 640), 640, QPointF(660, 520));
    skin.setColorAt(0, turned(QColor(236, 214, 92), number));
    skin.setColorAt(0.6, turned(QColor(176, 178, 54), number));
    skin.setColorAt(1, turned(QColor(96, 116, 36), number));
    painter.setBrush(skin);
    painter.drawPath(pear);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(92, 62, 36), 22, Qt::SolidLine, Qt::RoundCap));
    QPainterPath stem(QPointF(800, 214));
    stem.cubicTo(806, 160, 822, 120, 852, 96);
    painter.drawPath(stem);
    return image;
}

} // namespace pelmira
