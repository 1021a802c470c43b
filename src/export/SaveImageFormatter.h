#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

namespace pelmira {

/// Brings the cut-out into the forms in which it is saved. Images are in the bitmap form. Safe from
/// any thread; takes up to seconds for a large image.
class SaveImageFormatter {
public:
    /// Keeps a transparent image from being saved as a narrow sliver. A landscape one gets a canvas
    /// of at least half its width and at least 400 pixels high; any other one of at least a third
    /// of its height and at least 400 wide. The image lies in the middle, with transparent margins.
    /// One that is square and large enough comes back as it is. Null without memory.
    static QImage formatedPngImageForSaving(const QImage& image);

    /// Whether this system can write HEIF.
    static bool canWriteHEIF();
    /// Empty if the encoder fails.
    static QByteArray heifDataWithImage(const QImage& image);
};

/// The image laid on a colour: opaque.
QImage imageWithBGColor(const QImage& image, const QColor& color);

/// A JPEG of the image laid on a colour; empty without memory. Safe from any thread.
QByteArray jpegDataWithImage(const QImage& image, const QColor& bgColor);

/// The image with its longer side at 640 pixels.
QImage lowResolution(const QImage& image);

} // namespace pelmira
