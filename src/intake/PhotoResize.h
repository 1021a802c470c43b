#pragma once

#include <QImage>
#include <QImageIOHandler>

namespace pelmira {

/// Brings a picture to the size at which the editor can work on it. Images are in the bitmap form.
/// Safe from any thread; takes up to a second for a large picture.
class PhotoResize {
public:
    /// How a picture's stored rows and columns have to be turned to be seen upright.
    using Orientation = QImageIOHandler::Transformations;
    static constexpr Orientation Up = QImageIOHandler::TransformationNone;

    /// The picture upright, its longer side at least 400 pixels and at most what the device's
    /// memory allows. One within these bounds, and upright already, comes back as the same image.
    /// Ends the process if there is no memory for the result.
    static QImage imageForEditing(const QImage& image, Orientation orientation = Up);

    /// The same with other bounds of the longer side, in pixels.
    static QImage imageWithin(const QImage& image, double lowerBound, double upperBound,
                              Orientation orientation = Up);

    /// The picture with its orientation baked into its pixels.
    static QImage uprightImage(const QImage& image, Orientation orientation = Up);
};

} // namespace pelmira
