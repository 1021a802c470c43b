#include "crop/TOCropToolbar.h"

#include "controls/ScreenScale.h"
#include "crop/CropColors.h"
#include "crop/CropperBundleHelper.h"
#include "platform/text/LocalizedStrings.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPen>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double iconSide = 40.0;
constexpr double smallIconSide = 16.0;
constexpr double leastSmallIconSide = 9.0;
constexpr double gap = 10.0;
constexpr double buttonSide = 60.0;

/// The ratio's rectangle in the middle of the icon's square.
QRectF frameForRatio(QSizeF size)
{
    const double ratio = size.isEmpty() ? 1.0 : size.width() / size.height();
    const QSizeF fitted =
        ratio < 1.0 ? QSizeF(iconSide * ratio, iconSide) : QSizeF(iconSide, iconSide / ratio);
    return {QPointF((iconSide - fitted.width()) / 2.0, (iconSide - fitted.height()) / 2.0), fitted};
}

} // namespace

TOCropToolbar::TOCropToolbar(QSizeF originalImageSize, QObject* parent)
    : QObject(parent), _originalImageSize(originalImageSize)
{
    initSizes();
    initConstraintScrollView();
}

void TOCropToolbar::initSizes()
{
    for (std::size_t row = 0; row < _sizes.size(); ++row)
        _sizes[row] = {cropConstraints[row].width, cropConstraints[row].height};
    _sizes[cropPresetOriginal] = _originalImageSize;
}

void TOCropToolbar::initConstraintScrollView()
{
    for (int row = 0; row < cropPresetCount; ++row) {
        const QString title = titleForConstraint(row);
        const char* madeFor = cropConstraints[static_cast<std::size_t>(row)].madeFor;
        auto* button = new ConstraintButton(
            row, title, madeFor ? title + QLatin1String(", ") + QLatin1String(madeFor) : title,
            this);
        button->setTemplateImage(imageForConstraint(row));
        button->setSelected(row == cropPresetFree);
        button->setTintColor(row == cropPresetFree ? CropColors::label()
                                                   : CropColors::secondaryLabel());
        _buttons[static_cast<std::size_t>(row)] = button;
    }
}

QString TOCropToolbar::titleForConstraint(int row) const
{
    switch (row) {
    case cropPresetFree:
        return localized("crop.ratio.free");
    case cropPresetOriginal:
        return localized("crop.ratio.original");
    case cropPresetSquare:
        return localized("crop.ratio.square");
    default:
        break;
    }
    const QSizeF size = _sizes[static_cast<std::size_t>(row)];
    return QString::asprintf("%.0f x %.0f", size.width(), size.height());
}

void TOCropToolbar::constraintButtonPressed(ConstraintButton* button)
{
    if (!button)
        return;
    if (aspectRatioButtonTapped)
        aspectRatioButtonTapped(button->tag());
    for (ConstraintButton* each : _buttons) {
        each->setSelected(each == button);
        each->setTintColor(each == button ? CropColors::label() : CropColors::secondaryLabel());
    }
}

QImage TOCropToolbar::imageForConstraint(int row) const
{
    const double scale = screenScale();
    const int pixels = static_cast<int>(std::ceil(iconSide * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    const int shaping = row == cropPresetFree ? cropPresetOriginal : row;
    const QRectF frame = frameForRatio(_sizes[static_cast<std::size_t>(shaping)]);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkGray, 2.0));
    // A frame thinner than its own line is a line.
    const QSizeF inside(std::max(0.0, frame.width() - 2.0), std::max(0.0, frame.height() - 2.0));
    const QRectF line(frame.center() - QPointF(inside.width(), inside.height()) / 2.0, inside);
    painter.drawRoundedRect(line, 3.0, 3.0);
    if (const char* icon = cropConstraints[static_cast<std::size_t>(row)].icon) {
        QSvgRenderer renderer(CropperBundleHelper::bundle() + u'/' + QLatin1String(icon) +
                              QStringLiteral(".svg"));
        const double side = std::clamp(std::min(frame.width(), frame.height()) - 6.0,
                                       leastSmallIconSide, smallIconSide);
        renderer.render(&painter,
                        QRectF((iconSide - side) / 2.0, (iconSide - side) / 2.0, side, side));
    }
    return image;
}

void TOCropToolbar::positionButtonsInScrollview(double stripHeight)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(ConstraintButton::titleSize);
    const QFontMetricsF metrics(font);
    double x = gap;
    for (ConstraintButton* button : _buttons) {
        const double width =
            std::max(buttonSide, std::ceil(metrics.horizontalAdvance(button->title())));
        button->setFrame({x, (stripHeight - buttonSide) * 0.5, width, buttonSide});
        x += width + gap;
    }
    const QSizeF size(x, buttonSide);
    if (size == _contentSize)
        return;
    _contentSize = size;
    Q_EMIT contentSizeChanged();
}

QList<QObject*> TOCropToolbar::buttonObjects() const
{
    return {_buttons.begin(), _buttons.end()};
}

} // namespace pelmira
