#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

// What the process that gets killed and the test that kills it agree on.

namespace pelmira::test {

/// Where they look, inside the folder that both are given.
inline QString journalIn(const QString& folder)
{
    return folder + QStringLiteral("/journal");
}

/// All of one size, so that a mask fits whichever photo it does not belong to.
inline QImage numberedPhoto(unsigned number)
{
    std::mt19937 random(number);
    QImage photo(640, 480, QImage::Format_ARGB32_Premultiplied);
    photo.fill(QColor::fromRgb(static_cast<QRgb>(random()) | 0xFF000000));
    QPainter painter(&photo);
    for (int i = 0; i < 12; ++i) {
        const int x = static_cast<int>(random() % 600);
        const int y = static_cast<int>(random() % 440);
        painter.fillRect(x, y, 90, 70, QColor::fromRgb(static_cast<QRgb>(random()) | 0xFF000000));
    }
    return photo;
}

/// FNV-1a, http://www.isthe.com/chongo/tech/comp/fnv/
inline std::uint64_t fingerprint(const std::vector<std::uint8_t>& bytes)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const std::uint8_t byte : bytes)
        hash = (hash ^ byte) * 0x100000001b3;
    return hash;
}

} // namespace pelmira::test
