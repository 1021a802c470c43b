#pragma once

#include "platform/gl/GLObjects.h"

#include <QImage>
#include <QSGTexture>

#include <memory>
#include <vector>

class QQuickWindow;

namespace pelmira {

/// A picture as a texture of the scene, whose smaller copies are brought to it: the scene graph has
/// GL make them, for which a software renderer compiles 70 ms the first time, on the main thread.
/// Its context, the scene's, must be current wherever it is used.
class MipmapTexture final : public QSGTexture {
public:
    /// The picture alone. Nothing if the window isn't drawn with GL, or GL doesn't take the picture
    /// or smaller copies of its size.
    static std::unique_ptr<MipmapTexture> make(QQuickWindow& window, const QImage& image);
    ~MipmapTexture() override;

    /// All levels below the picture, as `smallerCopies` makes them of it. Until they are there, it
    /// must be drawn without filtering between levels. False if GL doesn't take them.
    bool addSmallerCopies(const std::vector<QImage>& copies);

    qint64 comparisonKey() const override { return _shown->comparisonKey(); }
    QRhiTexture* rhiTexture() const override { return _shown->rhiTexture(); }
    QSize textureSize() const override { return _shown->textureSize(); }
    bool hasAlphaChannel() const override { return _shown->hasAlphaChannel(); }
    bool hasMipmaps() const override { return _hasSmallerCopies; }

private:
    explicit MipmapTexture(GLTexture name) : _name(std::move(name)) {}

    GLTexture _name;
    /// The scene graph's own view of the texture. It would have GL make the levels as soon as it
    /// was to filter between them, so it is never told to.
    std::unique_ptr<QSGTexture> _shown;
    bool _hasSmallerCopies = false;
};

} // namespace pelmira
