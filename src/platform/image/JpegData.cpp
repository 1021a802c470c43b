#include "platform/image/JpegData.h"

#include <QtEndian>

namespace pelmira {
namespace {

enum Marker : uchar {
    SOF0 = 0xC0, // frame headers are C0 to CF, but for the three next
    DHT = 0xC4,
    JPG = 0xC8,
    DAC = 0xCC,
    SOF9 = 0xC9, // from here on arithmetic coding
    SOF15 = 0xCF,
    RST0 = 0xD0,
    SOI = 0xD8,
    EOI = 0xD9,
    SOS = 0xDA,
    TEM = 0x01,
};

bool isFrameHeader(uchar marker)
{
    return marker >= SOF0 && marker <= SOF15 && marker != DHT && marker != JPG && marker != DAC;
}

/// Includes the stuffed zero, which makes the byte before it data.
bool hasNoSegment(uchar marker)
{
    return marker == 0 || marker == TEM || (marker >= RST0 && marker <= SOI);
}

} // namespace

bool isCompleteJpeg(QByteArrayView bytes)
{
    const uchar* const data = reinterpret_cast<const uchar*>(bytes.data());
    qsizetype position = 0;
    qsizetype scanBytes = 0;
    qsizetype scanStart = -1;
    qint64 leastBits = 0;
    for (;;) {
        qsizetype next = bytes.indexOf('\xff', position);
        if (next < 0)
            return false;
        const qsizetype markerStart = next;
        while (next < bytes.size() && data[next] == 0xFF)
            ++next;
        if (next == bytes.size())
            return false;
        const uchar marker = data[next];
        position = next + 1;
        if (hasNoSegment(marker))
            continue;
        if (scanStart >= 0)
            scanBytes += markerStart - scanStart;
        scanStart = -1;
        if (marker == EOI)
            return scanBytes * 8 >= leastBits;
        if (bytes.size() - position < 2)
            return false;
        const qsizetype length = qFromBigEndian<quint16>(data + position);
        if (length < 2 || bytes.size() - position < length)
            return false;
        if (isFrameHeader(marker) && marker < SOF9 && length >= 7) {
            // The component of full resolution takes at least one bit for each 8 by 8 block.
            const qint64 height = qFromBigEndian<quint16>(data + position + 3);
            const qint64 width = qFromBigEndian<quint16>(data + position + 5);
            leastBits = ((width + 7) / 8) * ((height + 7) / 8);
        }
        position += length;
        if (marker == SOS)
            scanStart = position;
    }
}

} // namespace pelmira
