#include "Fuzz.h"
#include "platform/image/ExifOrientation.h"

void pelmira::fuzz(const QByteArray& input)
{
    const int orientation = exifOrientation(input);
    must(orientation >= 1 && orientation <= 8);
}
