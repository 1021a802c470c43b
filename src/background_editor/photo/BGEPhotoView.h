#pragma once

#include "controls/ZKLSlider.h"

#include <QColor>
#include <QImage>
#include <QObject>
#include <QString>

#include <functional>

namespace pelmira {

/// The panel of the background's photo: its thumbnail, which opens the picker, a button for the
/// crop tool, and the slider of its blur, whose lowest part is a true zero. Points.
class BGEPhotoView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(pelmira::ZKLSlider* slider READ slider CONSTANT)
    Q_PROPERTY(QString blurLabel READ blurLabel CONSTANT)
    Q_PROPERTY(double borderWidth READ borderWidth CONSTANT)
    Q_PROPERTY(double cornerRadius READ cornerRadius CONSTANT)
    Q_PROPERTY(QColor borderColor READ borderColor CONSTANT)
    Q_PROPERTY(QColor minimumTrackColor READ minimumTrackColor CONSTANT)
    Q_PROPERTY(QColor maximumTrackColor READ maximumTrackColor CONSTANT)

public:
    explicit BGEPhotoView(QObject* parent = nullptr);

    std::function<void()> showPhotoPickerBlock;
    std::function<void()> showCropScreenBlock;
    std::function<void(float)> setBlurAmountBlock;

    /// The photo as picked, whatever its crop and its blur.
    const QImage& image() const { return _image; }
    void setImage(const QImage& image);
    ZKLSlider* slider() { return &_slider; }
    /// How long the slider is, on which the length of its lowest part depends.
    Q_INVOKABLE void setSliderWidth(double width) { _sliderWidth = width; }
    QString blurLabel() const;

    // Of the thumbnail and the crop button.
    double borderWidth() const { return 1.0; }
    double cornerRadius() const { return 5.0; }
    QColor borderColor() const { return Qt::white; }
    // Of the slider.
    QColor minimumTrackColor() const;
    QColor maximumTrackColor() const;

    Q_INVOKABLE void cropButtonPressed() const;
    Q_INVOKABLE void handlePhotoTapped() const;

Q_SIGNALS:
    void imageChanged();

private:
    void blurSliderChanged();

    QImage _image;
    ZKLSlider _slider;
    double _sliderWidth = 0.0;
};

} // namespace pelmira
