#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <variant>

namespace pelmira {

enum class ImageProblem {
    Missing,
    NotAFile,
    Unreadable,
    Empty, ///< no bytes, or no pixels
    NotAnImage,
    Damaged,
    TooLarge,
};

/// In pixels; what rotation and painting can address.
constexpr int longestImageSide = 32767;

/// What is refused before anything is decoded.
struct ImageLimits {
    std::int64_t pixels;
    std::int64_t fileBytes;

    /// A picture may take half of the memory at 16 bytes a pixel, which is what turning one with 16
    /// bits a component takes, and never more than 2^28 pixels; its file an eighth of the memory.
    static ImageLimits forMemory(std::uint64_t bytes);

    bool allow(QSize size) const;
};

/// Reads a photo into the bitmap form, upright. Its kind is told by its contents, whatever its name
/// says; of several frames the first is taken. Safe from any thread; takes seconds for a large one.
std::variant<QImage, ImageProblem> loadImage(const QString& path);
std::variant<QImage, ImageProblem> loadImage(const QString& path, const ImageLimits& limits);

/// The same for a file's contents.
std::variant<QImage, ImageProblem> imageFromData(QByteArray bytes, const ImageLimits& limits);

/// One line for the user, which names the file.
QString messageForProblem(ImageProblem problem, const QString& path);

/// The bitmap form: sRGB, in memory the bytes B, G, R, A, premultiplied, one point a pixel, and no
/// texts beside. A picture without a colour profile is taken as sRGB. Null if there is no memory.
QImage makeBitmapForm(QImage image);

/// For readers of pixels alone: the same image, not copied, if its pixels are in the bitmap form
/// already, whatever its marks and texts say beside. Null as above.
QImage bitmapPixels(const QImage& image);

} // namespace pelmira
