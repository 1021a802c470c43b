#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

namespace pelmira {

class SaveImageFormatter {
public:
    static QImage formatedPngImageForSaving(const QImage& image);
    static QByteArray heifDataWithImage(const QImage& image);
    static bool canWriteHEIF();
};

QImage imageWithBGColor(const QImage& image, const QColor& color);
QImage lowResolution(const QImage& image);

} // namespace pelmira
