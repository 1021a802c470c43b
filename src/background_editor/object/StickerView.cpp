#include "background_editor/object/StickerView.h"

#include "platform/base/Log.h"

#include <utility>

namespace pelmira {

StickerView::StickerView(const QImage& image, std::shared_ptr<OriginalImage> originalImage,
                         QPointF center, double rotation, double size)
    : _image(image), _originalImage(std::move(originalImage))
{
    double aspect = 1.0;
    QSizeF bounds;
    if (!image.isNull()) {
        aspect = double(image.width()) / image.height();
        bounds = image.height() < image.width() ? QSizeF(size, size / aspect)
                                                : QSizeF(aspect * size, size);
    } else {
        bounds = {0.0, 0.0};
    }
    originalAspectRatio = aspect;
    setBounds(bounds);
    setCenter(center);
    setRotation(rotation);
    setContentView(ContentView{image});
}

void StickerView::setShownImage(const QImage& image)
{
    _shownImage = image;
    Q_EMIT contentViewChanged();
}

StickerView::~StickerView()
{
    logLine("StickerView deinit");
}

} // namespace pelmira
