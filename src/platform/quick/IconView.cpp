#include "platform/quick/IconView.h"

#include "platform/base/Log.h"

#include <QPainter>
#include <QQmlContext>
#include <QQmlFile>
#include <QQuickWindow>
#include <qqml.h>

namespace pelmira {

IconView::IconView(QQuickItem* parent) : ImageView(parent)
{
}

void IconView::setSource(const QUrl& source)
{
    if (source == _source)
        return;
    _source = source;
    if (!source.isEmpty()) {
        // A relative address is meant from the layout file that names it.
        const QQmlContext* context = qmlContext(this);
        const QUrl url = context ? context->resolvedUrl(source) : source;
        if (!_renderer.load(QQmlFile::urlToLocalFileOrQrc(url)))
            logLine("No icon at %s", qPrintable(url.toString()));
    }
    polish();
    Q_EMIT sourceChanged();
}

void IconView::setTintColor(const QColor& color)
{
    if (color == _tintColor)
        return;
    _tintColor = color;
    polish();
    Q_EMIT tintColorChanged();
}

void IconView::geometryChange(const QRectF& now, const QRectF& before)
{
    ImageView::geometryChange(now, before);
    if (now.size() != before.size())
        polish();
}

void IconView::itemChange(ItemChange change, const ItemChangeData& data)
{
    ImageView::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        polish();
}

void IconView::updatePolish()
{
    if (!window() || !_renderer.isValid())
        return;
    const QSize pixels = (size() * window()->effectiveDevicePixelRatio()).toSize();
    if (pixels.isEmpty())
        return;
    QImage drawing(pixels, QImage::Format_ARGB32_Premultiplied);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    painter.setRenderHint(QPainter::Antialiasing);
    _renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    if (_tintColor.alpha() > 0) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(drawing.rect(), _tintColor);
    }
    painter.end();
    setImage(drawing);
}

} // namespace pelmira
