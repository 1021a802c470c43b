#include "background_editor/shadow/LayerShadow.h"

#include "background_editor/shadow/Coverage.h"
#include "background_editor/shadow/ShadowResolution.h"
#include "platform/base/RunLoop.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr int screenSilhouetteSide = 1024; // pixels
// A size may differ by so much from the one for which the image was made: the softness of a shadow
// that is off by a twentieth looks the same.
constexpr double stretchUnseen = 1.05;

bool isStretched(double length, double madeFor)
{
    return length > madeFor * stretchUnseen || length * stretchUnseen < madeFor;
}

} // namespace

void LayerShadow::Source::takeSilhouette()
{
    if (picture.isNull())
        return;
    silhouette = Silhouette(picture, screenSilhouetteSide);
    picture = {};
}

LayerShadow::LayerShadow(QObject* parent)
    : QObject(parent), _queue(globalQueue(QueuePriority::UserInitiated))
{
}

LayerShadow::~LayerShadow()
{
    // Nobody can paint any more once the application object has gone.
    _queue.cancelAllOperations();
    _queue.waitUntilAllOperationsAreFinished();
}

void LayerShadow::setPicture(const QImage& picture)
{
    _source = picture.isNull() ? nullptr : std::make_shared<Source>(Source{picture, {}});
    _shown = {};
    remake();
    if (_source && !isShown()) // ready when the first shadow is wanted
        _queue.addOperation([source = _source] { source->takeSilhouette(); });
    Q_EMIT changed();
}

void LayerShadow::setSize(QSizeF size)
{
    if (size == _size)
        return;
    _size = size;
    if (isOutgrown())
        remake();
    Q_EMIT changed();
}

void LayerShadow::setValues(const LayerShadowValues& values)
{
    if (values == _values)
        return;
    const bool isPlacedOnly =
        values.shadowColor == _values.shadowColor && values.shadowRadius == _values.shadowRadius;
    _values = values;
    if (!isPlacedOnly)
        remake();
    Q_EMIT changed();
}

void LayerShadow::setScreenScale(double scale)
{
    if (std::exchange(_screenScale, scale) != scale)
        remake();
}

QRectF LayerShadow::frame() const
{
    if (_shown.image.isNull())
        return {};
    const double x = _size.width() / _shown.size.width();
    const double y = _size.height() / _shown.size.height();
    const QRectF& made = _shown.frame;
    return QRectF(made.x() * x, made.y() * y, made.width() * x, made.height() * y)
        .translated(_values.shadowOffset);
}

bool LayerShadow::isOutgrown() const
{
    return isStretched(_size.width(), _sizeInWork.width()) ||
           isStretched(_size.height(), _sizeInWork.height());
}

void LayerShadow::remake()
{
    _queue.cancelAllOperations();
    if (!isShown()) {
        _shown = {};
        _sizeInWork = {};
        return;
    }
    _sizeInWork = _size;
    _queue.addOperation([self = QPointer(this), source = _source, values = _values, size = _size,
                         scale = _screenScale] {
        const Made made = make(*source, values, size, scale);
        mainQueue().async([self, source, made] {
            // A late one is better than none while the next is made, but not of another picture.
            if (!self || self->_source != source || !self->isShown())
                return;
            self->_shown = made;
            Q_EMIT self->changed();
        });
    });
}

LayerShadow::Made LayerShadow::make(Source& source, const LayerShadowValues& values, QSizeF size,
                                    double scale)
{
    source.takeSilhouette();
    const double deviation = values.shadowRadius;
    const double longest = std::max(size.width(), size.height());
    const double density =
        std::min(shadowDensity(deviation, scale), screenSilhouetteSide / longest);
    const double reach = shadowReach(deviation);
    const QTransform toPixels = QTransform::fromScale(density, density);
    const QRect region = toPixels.mapRect(QRectF({}, size))
                             .marginsAdded(QMarginsF(reach, reach, reach, reach) * density)
                             .toAlignedRect();
    const QImage coverage = source.silhouette.blurred(
        QTransform::fromScale(size.width(), size.height()) * toPixels, region, deviation * density);
    return {tinted(coverage, values.shadowColor), toPixels.inverted().mapRect(QRectF(region)),
            size};
}

} // namespace pelmira
