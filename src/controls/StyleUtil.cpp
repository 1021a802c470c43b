#include "controls/StyleUtil.h"

#include "controls/ScreenScale.h"

#include <QPainter>

#include <cstdlib>

namespace pelmira {

namespace {

// A palette entry that is no colour is a slip of the source: it must not reach a screen.
QColor paletteColor(QStringView text)
{
    const std::optional<QColor> color = colorWithHexString(text);
    if (!color)
        std::abort();
    return *color;
}

} // namespace

std::optional<QColor> colorWithHexString(QStringView text)
{
    if (text.size() != 7 || text.front() != u'#')
        return std::nullopt;
    for (const QChar digit : text.sliced(1)) {
        if (!QStringView(u"0123456789abcdefABCDEF").contains(digit))
            return std::nullopt;
    }
    return QColor::fromRgb(text.sliced(1).toUInt(nullptr, 16));
}

QColor StyleUtil::ground()
{
    return paletteColor(u"#101113");
}

QColor StyleUtil::deleteRed()
{
    return paletteColor(u"#f56a6a");
}

QColor StyleUtil::buttonBlue()
{
    return paletteColor(u"#5699fd");
}

QColor StyleUtil::selectedTint()
{
    return paletteColor(u"#ff9500");
}

QColor StyleUtil::sliderMinTrackColor()
{
    return paletteColor(u"#01b0f0");
}

QColor StyleUtil::sliderMaxTrackColor()
{
    return paletteColor(u"#b8b8b8");
}

QImage StyleUtil::sliderThumbImage()
{
    const double scale = screenScale();
    QImage image((QSizeF(20.0, 20.0) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(0.0, 0.0, 20.0, 20.0).adjusted(1.0, 1.0, -1.0, -1.0));
    return image;
}

} // namespace pelmira
