#pragma once

#include "Bench.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// What benchmarks of finished cut-outs share: the pictures, and programs that run side by side.
namespace pelmira::bench {

/// What is left of a photo: an ellipse with a soft edge.
inline QImage cutOut(QImage photo)
{
    photo.convertTo(QImage::Format_ARGB32);
    const double width = photo.width();
    const double height = photo.height();
    for (int y = 0; y < photo.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x) {
            const double from = std::hypot((x / width - 0.5) / 0.40, (y / height - 0.5) / 0.45);
            const double alpha = std::clamp((1.0 - from) * width * 0.1, 0.0, 1.0);
            row[x] = (row[x] & 0xFFFFFF) | static_cast<QRgb>(alpha * 255.0) << 24;
        }
    }
    return photo.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Runs it to its end and gives the milliseconds.
inline double run(const std::vector<QByteArray>& arguments)
{
    return milliseconds([&] {
        const pid_t child = fork();
        if (child == 0) {
            std::vector<char*> words;
            for (const QByteArray& argument : arguments)
                words.push_back(const_cast<char*>(argument.constData()));
            words.push_back(nullptr);
            execvp(words[0], words.data());
            _exit(127);
        }
        int status = 0;
        if (waitpid(child, &status, 0) < 0 || status != 0) {
            std::fprintf(stderr, "%s failed\n", arguments[0].constData());
            std::exit(EXIT_FAILURE);
        }
    });
}

/// The pixels alone.
inline void write(const QString& path, const QImage& image)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()) !=
            image.sizeInBytes())
        qFatal("%s can't be written", qPrintable(path));
}

} // namespace pelmira::bench
