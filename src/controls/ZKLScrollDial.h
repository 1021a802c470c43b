#pragma once

#include "controls/ZKLScrollDialDelegate.h"

#include <QFont>
#include <QImage>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace pelmira {

/// A horizontal thumbwheel: a strip of ticks dragged sideways under a fixed read-out. The scroll
/// position is the value: the share of the strip that lies left of the dial's centre line.
///
/// This is the dial itself; the layout file only shows what stands here and reports what the
/// user does. All geometry is in points, in the dial's own coordinates, y down.
/// Main thread only.
class ZKLScrollDial final : public QObject {
    Q_OBJECT
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    Q_PROPERTY(QString title READ title NOTIFY laidOut)
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame NOTIFY laidOut)
    Q_PROPERTY(QFont font READ font CONSTANT)
    Q_PROPERTY(QRectF scrollViewFrame READ scrollViewFrame NOTIFY laidOut)
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY laidOut)
    Q_PROPERTY(double contentInset READ contentInset NOTIFY laidOut)
    Q_PROPERTY(double contentOffset READ contentOffset NOTIFY contentOffsetMoved)
    Q_PROPERTY(QImage strip READ strip NOTIFY laidOut)
    Q_PROPERTY(QRectF stripFrame READ stripFrame NOTIFY laidOut)
    Q_PROPERTY(QString titleText READ titleText NOTIFY laidOut)
    Q_PROPERTY(QRectF titleFrame READ titleFrame NOTIFY laidOut)
    Q_PROPERTY(QString valueText READ valueText NOTIFY readOutChanged)
    Q_PROPERTY(QRectF valueFrame READ valueFrame NOTIFY readOutChanged)
    Q_PROPERTY(double valueCornerRadius READ valueCornerRadius NOTIFY readOutChanged)
public:
    explicit ZKLScrollDial(QObject* parent = nullptr);

    double value() const { return _value; }
    /// Updates the read-out only: the strip stays and the delegate isn't told.
    void setValue(double value);
    /// Moves the strip to where the value says, without telling the delegate.
    void setScrollPosForCurrentValue();

    QString title() const { return _title; }
    /// A null string shows nothing, but a label that is already in place keeps its two points.
    void setTitle(const QString& title);

    /// Not owned: the delegate outlives the dial or sets itself back to null.
    void setDelegate(ZKLScrollDialDelegate* delegate) { _delegate = delegate; }

    /// In the owner's coordinates. A new size asks for a layout.
    QRectF frame() const { return _frame; }
    void setFrame(const QRectF& frame);

    /// The tick strip for a size in points, at the resolution of the sharpest screen.
    /// A null image for an empty size.
    static QImage createTickImageWithSize(const QSizeF& size);

    void setNeedsLayout();
    Q_INVOKABLE void layoutIfNeeded();
    void layoutSubviews();

    /// The strip stands at the content offset x, by the user's doing or by our own.
    Q_INVOKABLE void scrollViewDidScroll(double x);
    /// Turns the dial as a drag would, stopping at the ends: by a share of the whole range, by a
    /// distance in points, or to a value.
    Q_INVOKABLE void stepBy(double share);
    void scrollBy(double points);
    Q_INVOKABLE void scrollToValue(double value);

    /// A key of the user's: an arrow goes a hundredth, a page key a tenth, Home and End all the
    /// way. False for any other one.
    Q_INVOKABLE bool keyPressed(int key);
    /// A wheel over the dial turned, in eighths of a degree: a notch goes a hundredth. A turn
    /// sideways goes along with the strip.
    Q_INVOKABLE void wheelTurned(QPointF angle);

    QFont font() const { return _font; }
    QRectF scrollViewFrame() const { return _scrollView.frame; }
    double contentWidth() const { return _scrollView.contentSize.width(); }
    /// Left and right.
    double contentInset() const { return _scrollView.contentInset; }
    double contentOffset() const { return _scrollView.contentOffset; }
    QImage image() const { return _image; }
    /// What the image view shows: the strip of the first layout, stretched by later ones.
    QImage strip() const { return _imageView.image; }
    QRectF stripFrame() const { return _imageView.frame; }
    QString titleText() const { return _titleLabel.text; }
    QRectF titleFrame() const { return _titleLabel.frame; }
    QString valueText() const { return _valueLabel.text; }
    QRectF valueFrame() const { return _valueLabel.frame; }
    double valueCornerRadius() const { return _valueLabel.cornerRadius; }

Q_SIGNALS:
    void valueChanged();
    void readOutChanged();
    void laidOut();
    /// The view is to put its strip there; what it reports back of that move is to be dropped.
    void contentOffsetMoved(double x);

private:
    struct ScrollView {
        QRectF frame;
        QSizeF contentSize;
        double contentInset = 0.0;
        double contentOffset = 0.0;
    };
    struct ImageView {
        QImage image;
        QRectF frame;
    };
    struct Label {
        QString text;
        QRectF frame;
        double cornerRadius = 0.0;
        bool hasParent = false;
    };

    QSizeF imageSize() const;
    QSizeF fittingSize(const QString& text) const;
    double offsetForValue(double value) const;
    double valueForOffset(double x) const;
    void moveStrip(double x);

    QString _title;
    double _value = 0.2;
    ZKLScrollDialDelegate* _delegate = nullptr;
    ScrollView _scrollView;
    QImage _image;
    ImageView _imageView;
    Label _valueLabel;
    Label _titleLabel;

    QRectF _frame;
    QSizeF _imageSize; // in points; the image itself is in pixels
    QFont _font;
    bool _needsLayout = false;
};

} // namespace pelmira
