#pragma once

#include "background_editor/colors/ColorPickerLineView.h"
#include "background_editor/colors/ColorPickerView.h"
#include "platform/screen/Screen.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

namespace pelmira {

/// The colour on which a cut-out is saved flat: the cut-out over the colour that is being chosen.
class ChangeColorVC final : public Screen {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QImage image READ image CONSTANT)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QSizeF imageViewSize READ imageViewSize NOTIFY layoutChanged)
    Q_PROPERTY(QSizeF containerSize READ containerSize WRITE setContainerSize NOTIFY layoutChanged)
    Q_PROPERTY(pelmira::ColorPickerLineView* colorPickerLine READ colorPickerLine CONSTANT)
    Q_PROPERTY(pelmira::ColorPickerView* colorPicker READ colorPicker CONSTANT)

public:
    ChangeColorVC();

    /// Made for the eye, and shown for as long as the screen lives; null if there is none.
    void setImage(const QImage& image) { _image = image; }
    /// What is chosen before the user chooses; invalid for none.
    void setBackgroundColor(const QColor& color);
    std::function<void(const QColor&)> doneBlock;
    /// Takes this screen away.
    std::function<void()> dismissBlock;

    Q_INVOKABLE void doneButtonPressed();
    Q_INVOKABLE void cancelButtonPressed();

    QUrl layoutFile() const override;
    void viewDidLoad() override;

    QString title() const;
    QImage image() const { return _image; }
    QColor backgroundColor() const { return _backgroundColor; }
    /// Of the area in which the image is fitted, in points.
    QSizeF containerSize() const { return _containerSize; }
    void setContainerSize(QSizeF size);
    /// As large as the area allows, in the image's shape.
    QSizeF imageViewSize() const { return _imageViewSize; }
    ColorPickerLineView* colorPickerLine() { return &_colorPickerLine; }
    ColorPickerView* colorPicker() { return &_colorPicker; }

Q_SIGNALS:
    void backgroundColorChanged();
    void layoutChanged();

private:
    void leave();

    QImage _image;
    QColor _backgroundColor;
    QSizeF _containerSize;
    QSizeF _imageViewSize;
    ColorPickerLineView _colorPickerLine;
    ColorPickerView _colorPicker;
};

} // namespace pelmira
