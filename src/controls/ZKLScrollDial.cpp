#include "controls/ZKLScrollDial.h"

#include "controls/ScreenScale.h"
#include "platform/text/NumberFormatter.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace pelmira {

namespace {

constexpr int labelFontPixels = 15;
constexpr int tickCount = 51;
constexpr double shortStep = 0.01; // of the whole range
constexpr double longStep = 0.1;
constexpr double eighthsPerNotch = 120.0;
constexpr double pointsPerEighth = 0.25;
const QColor lightGrey(170, 170, 170);

} // namespace

ZKLScrollDial::ZKLScrollDial(QObject* parent) : QObject(parent)
{
    _font.setPixelSize(labelFontPixels);
    _valueLabel.hasParent = true;
    _valueLabel.cornerRadius = 5.0;
    setValue(0.2);
}

void ZKLScrollDial::setValue(double value)
{
    const bool changed = value != _value;
    _value = value;
    _valueLabel.text = NumberFormatter::percent(value);
    const QSizeF fitted = fittingSize(_valueLabel.text);
    QRectF frame(0.0, 0.0, fitted.width() + 2.0 * _valueLabel.cornerRadius, fitted.height());
    frame.moveCenter(_scrollView.frame.center());
    _valueLabel.frame = frame;
    Q_EMIT readOutChanged();
    if (changed)
        Q_EMIT valueChanged();
}

void ZKLScrollDial::setScrollPosForCurrentValue()
{
    ZKLScrollDialDelegate* delegate = _delegate;
    _delegate = nullptr;
    moveStrip(offsetForValue(_value));
    _delegate = delegate;
}

void ZKLScrollDial::setTitle(const QString& title)
{
    if (title == _title && title.isNull() == _title.isNull())
        return;
    _title = title;
    if (!title.isNull())
        _titleLabel.hasParent = true;
    _titleLabel.text = title;
    _titleLabel.frame.setSize(fittingSize(title));
    setNeedsLayout();
}

void ZKLScrollDial::setFrame(const QRectF& frame)
{
    if (frame == _frame)
        return;
    const bool resized = frame.size() != _frame.size();
    _frame = frame;
    if (resized)
        setNeedsLayout();
    else
        Q_EMIT laidOut();
}

QImage ZKLScrollDial::createTickImageWithSize(const QSizeF& size)
{
    if (!(size.width() > 0.0 && size.height() > 0.0))
        return {};
    const double scale = screenScale();
    QImage image((size * scale).toSize().expandedTo(QSize(1, 1)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double step = (size.width() - 2.0) / 50.0;
    double x = 0.0;
    for (int i = 0; i < tickCount; ++i, x += step) {
        const bool major = i % 5 == 0;
        const double margin = major ? 6.0 : 10.0;
        painter.fillRect(QRectF(x, margin, major ? 2.0 : 1.0, size.height() - 2.0 * margin),
                         lightGrey);
    }
    return image;
}

void ZKLScrollDial::setNeedsLayout()
{
    if (_needsLayout)
        return;
    _needsLayout = true;
    QMetaObject::invokeMethod(this, &ZKLScrollDial::layoutIfNeeded, Qt::QueuedConnection);
}

void ZKLScrollDial::layoutIfNeeded()
{
    if (!_needsLayout)
        return;
    _needsLayout = false;
    layoutSubviews();
}

void ZKLScrollDial::layoutSubviews()
{
    const QSizeF bounds = _frame.size();
    if (_image.isNull() || imageSize() != bounds) {
        _image = createTickImageWithSize(bounds);
        _imageSize = bounds;
    }
    // The image view keeps its first strip: a later width only stretches it.
    if (_imageView.image.isNull())
        _imageView.image = _image;

    double titleWidth = 0.0;
    if (_titleLabel.hasParent) {
        _titleLabel.frame = QRectF(0.0, 0.0, _titleLabel.frame.width(), bounds.height());
        titleWidth = _titleLabel.frame.width() + 2.0;
    }
    _imageView.frame = QRectF(QPointF(), imageSize());
    _scrollView.contentSize = imageSize();
    _scrollView.contentInset = 0.5 * bounds.width();
    setValue(_value);
    // After setValue: the read-out takes up the new radius with the next value.
    _valueLabel.cornerRadius = (bounds.height() - 12.0) * 0.5;

    const QRectF wanted(titleWidth, 0.0, bounds.width() - titleWidth, bounds.height());
    const bool moved = wanted != _scrollView.frame;
    _scrollView.frame = wanted;
    Q_EMIT laidOut();
    if (moved)
        setScrollPosForCurrentValue();
    Q_EMIT readOutChanged();
}

void ZKLScrollDial::scrollViewDidScroll(double x)
{
    if (!std::isfinite(x) || !(imageSize().width() > 0.0))
        return;
    _scrollView.contentOffset = x;
    setValue(valueForOffset(x));
    if (_delegate)
        _delegate->zklScrollDial(*this, _value);
}

void ZKLScrollDial::stepBy(double share)
{
    scrollToValue(_value + share);
}

void ZKLScrollDial::scrollBy(double points)
{
    // From where the strip is shown, brought back first if it stands beyond an end.
    scrollToValue(valueForOffset(offsetForValue(_value) + points));
}

void ZKLScrollDial::scrollToValue(double value)
{
    layoutIfNeeded();
    if (std::isfinite(value))
        moveStrip(offsetForValue(std::clamp(value, 0.0, 1.0)));
}

bool ZKLScrollDial::keyPressed(int key)
{
    switch (key) {
    case Qt::Key_Left:
        stepBy(-shortStep);
        return true;
    case Qt::Key_Right:
        stepBy(shortStep);
        return true;
    case Qt::Key_PageDown:
        stepBy(-longStep);
        return true;
    case Qt::Key_PageUp:
        stepBy(longStep);
        return true;
    case Qt::Key_Home:
        scrollToValue(0.0);
        return true;
    case Qt::Key_End:
        scrollToValue(1.0);
        return true;
    default:
        return false;
    }
}

void ZKLScrollDial::wheelTurned(QPointF angle)
{
    if (angle.y() != 0.0)
        stepBy(angle.y() / eighthsPerNotch * shortStep);
    if (angle.x() != 0.0)
        scrollBy(-angle.x() * pointsPerEighth);
}

QSizeF ZKLScrollDial::imageSize() const
{
    return _image.isNull() ? QSizeF(0.0, 0.0) : _imageSize;
}

QSizeF ZKLScrollDial::fittingSize(const QString& text) const
{
    if (text.isEmpty())
        return {0.0, 0.0};
    const QFontMetricsF metrics(_font);
    return {std::ceil(metrics.horizontalAdvance(text)), std::ceil(metrics.height())};
}

// The centre line is that of the whole dial, also where a title narrows the scroll view.
double ZKLScrollDial::offsetForValue(double value) const
{
    return value * imageSize().width() - 0.5 * _frame.width();
}

double ZKLScrollDial::valueForOffset(double x) const
{
    const double value = (x + 0.5 * _frame.width()) / imageSize().width();
    return std::max(std::min(value, 1.0), 0.0);
}

void ZKLScrollDial::moveStrip(double x)
{
    _scrollView.contentOffset = x;
    Q_EMIT contentOffsetMoved(x);
    scrollViewDidScroll(x);
}

} // namespace pelmira
