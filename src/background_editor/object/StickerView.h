#pragma once

#include "background_editor/object/SelectableObjectView.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// An object that shows an image, stretched to its bounds.
class StickerView final : public SelectableObjectView {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY contentViewChanged)

public:
    /// Where the picture came from.
    struct OriginalImage {
        QString imageName; ///< of a bundled picture; empty for the cut-out
        /// Makes the picture as PNG, which takes a while. Nobody has asked for it so far.
        std::function<QByteArray()> imageData;
    };

    /// The longer side is as long as told; without an image the object has no size.
    StickerView(const QImage& image, std::shared_ptr<OriginalImage> originalImage, QPointF center,
                double rotation, double size);
    ~StickerView() override;

    /// What the screen shows: a smaller copy, if one was given.
    QImage image() const { return _shownImage.isNull() ? _image : _shownImage; }
    void setShownImage(const QImage& image);
    const std::shared_ptr<OriginalImage>& originalImage() const { return _originalImage; }

private:
    const QImage _image;
    QImage _shownImage;
    const std::shared_ptr<OriginalImage> _originalImage;
};

} // namespace pelmira
