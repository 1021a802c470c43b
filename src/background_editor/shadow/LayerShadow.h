#pragma once

#include "background_editor/shadow/ShadowValues.h"
#include "background_editor/shadow/Silhouette.h"
#include "platform/base/OperationQueue.h"

#include <QImage>
#include <QObject>
#include <QRectF>
#include <QSizeF>

#include <memory>

namespace pelmira {

/// The shadow behind a picture on screen, as an image and its place in the picture's own points.
///
/// The image is small and made off the main thread; while values come faster than images, only the
/// newest of them counts. Moving and turning don't concern it, an offset or another size only
/// places it. It is made again for another blur, colour or picture, and when the picture has been
/// stretched so far that the softness, which stays the same in points, would be seen to have grown
/// with it.
class LayerShadow : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY changed)
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed)
    Q_PROPERTY(double opacity READ opacity NOTIFY changed)

public:
    explicit LayerShadow(QObject* parent = nullptr);
    ~LayerShadow() override;

    /// Whose shadow it is: a picture in the bitmap form.
    void setPicture(const QImage& picture);
    /// What the picture fills, in points.
    void setSize(QSizeF size);
    void setValues(const LayerShadowValues& values);
    /// Pixels of the screen to a point.
    void setScreenScale(double scale);

    /// Null while there is nothing to show.
    const QImage& image() const { return _shown.image; }
    /// In points of the picture's own bounds, whose corner is (0, 0).
    QRectF frame() const;
    double opacity() const { return static_cast<double>(_values.shadowOpacity); }

Q_SIGNALS:
    void changed();

private:
    /// Used on the queue only.
    struct Source {
        void takeSilhouette();

        QImage picture; ///< until the silhouette has been taken
        Silhouette silhouette;
    };
    struct Made {
        QImage image;
        QRectF frame; ///< without the offset
        QSizeF size;  ///< of the picture
    };

    static Made make(Source& source, const LayerShadowValues& values, QSizeF size, double scale);
    bool isShown() const { return _source && _values.shadowColor.isValid() && !_size.isEmpty(); }
    bool isOutgrown() const;
    void remake();

    OperationQueue _queue;
    std::shared_ptr<Source> _source;
    LayerShadowValues _values;
    QSizeF _size;
    QSizeF _sizeInWork; ///< of the image last asked for
    double _screenScale = 1.0;
    Made _shown;
};

} // namespace pelmira
