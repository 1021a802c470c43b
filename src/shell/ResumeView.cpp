#include "shell/ResumeView.h"

#include <QPainter>

#include <algorithm>

namespace pelmira {
namespace {

// Black, of radius 12 points and opacity 0.2, straight below the picture; which is shown about 240
// points large. Each pixel is the mean of a square of two radii and is spread over its neighbours
// when it is enlarged: together a blur whose standard deviation is the radius.
constexpr int pictureSide = 240; // points
constexpr int cell = 24;         // points a pixel of the shadow
constexpr int margin = 2 * cell;
constexpr int darkness = 51;

QImage shadowOf(const QImage& image)
{
    const QSize size =
        image.size().scaled(pictureSide, pictureSide, Qt::KeepAspectRatio).expandedTo({1, 1});
    QImage silhouette(size.grownBy({margin, margin, margin, margin}),
                      QImage::Format_ARGB32_Premultiplied);
    silhouette.fill(Qt::transparent);
    QPainter painter(&silhouette);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect({margin, margin}, size), image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(silhouette.rect(), QColor(0, 0, 0, darkness));
    painter.end();
    return silhouette.scaled((silhouette.size() / cell).expandedTo({1, 1}), Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
}

} // namespace

void ResumeView::setImage(const QImage& thumbnail)
{
    _image = thumbnail;
    _shadow = shadowOf(thumbnail);
    Q_EMIT imageChanged();
}

double ResumeView::shadowMargin() const
{
    return double(margin) / pictureSide;
}

} // namespace pelmira
