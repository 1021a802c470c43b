#include "background_editor/shadow/Silhouette.h"

#include "background_editor/shadow/Coverage.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>

namespace pelmira {
namespace {

QImage scaled(const QImage& image, QSize size)
{
    return image.scaled(size.expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

} // namespace

Silhouette::Silhouette(const QImage& picture, int longestSide)
{
    if (picture.isNull())
        return;
    const QSize most(longestSide, longestSide);
    const bool isLarger = std::max(picture.width(), picture.height()) > longestSide;
    const QImage small =
        isLarger ? scaled(picture, picture.size().scaled(most, Qt::KeepAspectRatio)) : picture;
    for (QImage level = small.convertToFormat(QImage::Format_Alpha8); !level.isNull();
         level = scaled(level, level.size() / 2).convertToFormat(QImage::Format_Alpha8)) {
        _levels.append(level);
        if (std::max(level.width(), level.height()) <= 16)
            break;
    }
}

const QImage& Silhouette::levelFor(const QTransform& place) const
{
    const QPointF origin = place.map(QPointF(0.0, 0.0));
    const double width = QLineF(origin, place.map(QPointF(1.0, 0.0))).length();
    const double height = QLineF(origin, place.map(QPointF(0.0, 1.0))).length();
    const auto smallest = std::find_if(_levels.rbegin(), _levels.rend(), [&](const QImage& level) {
        return level.width() >= width && level.height() >= height;
    });
    return smallest == _levels.rend() ? _levels.first() : *smallest;
}

QImage Silhouette::blurred(const QTransform& place, const QRect& region, double deviation) const
{
    QImage sharp(region.size(), QImage::Format_Alpha8);
    if (isNull() || sharp.isNull())
        return {};
    sharp.fill(0);
    {
        QPainter painter(&sharp);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setTransform(place * QTransform::fromTranslate(-region.x(), -region.y()));
        painter.drawImage(QRectF(0.0, 0.0, 1.0, 1.0), levelFor(place));
    }
    return blurredCoverage(sharp, deviation);
}

} // namespace pelmira
