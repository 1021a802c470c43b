#pragma once

#include "platform/quick/ImageView.h"

#include <QColor>
#include <QSvgRenderer>
#include <QUrl>

namespace pelmira {

/// Shows a vector image at the item's size, sharp at any resolution. With a tint it shows only
/// the drawing's shape, in that colour; with a transparent tint, the drawing's own colours.
class IconView : public ImageView {
    Q_OBJECT
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(QColor tintColor READ tintColor WRITE setTintColor NOTIFY tintColorChanged)
public:
    explicit IconView(QQuickItem* parent = nullptr);

    QUrl source() const { return _source; }
    /// A file or a bundled resource.
    void setSource(const QUrl& source);
    QColor tintColor() const { return _tintColor; }
    void setTintColor(const QColor& color);

Q_SIGNALS:
    void sourceChanged();
    void tintColorChanged();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;

private:
    QUrl _source;
    QColor _tintColor = Qt::transparent;
    QSvgRenderer _renderer;
};

} // namespace pelmira
