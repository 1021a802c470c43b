#pragma once

#include <QImage>
#include <QString>

#include <cstdint>
#include <vector>

namespace pelmira::bench {

/// Something to be cut out, in front of nothing: straight B, G, R, A.
struct Subject {
    QString name;
    QImage image;
};

/// Hard shapes, leaves, fur and thin wires, painted by rule.
std::vector<Subject> paintedSubjects(std::uint32_t seed = 0);

/// The PNG files with alpha in a folder.
std::vector<Subject> subjectsInFolder(const QString& folder);

/// How the photograph is taken.
struct Camera {
    const char* name;
    double blur;  // sigma of the optics, in pixels
    double noise; // sigma, in levels
    int jpeg;     // quality, 1 to 100
};

/// A photograph of a subject before a background, and what a flawless cut-out of it would be.
struct Photograph {
    QString name;
    QImage photo;             // opaque B, G, R, A
    std::vector<float> truth; // blue, green, red multiplied by alpha, alpha: 0 to 255, by pixel
    int width() const { return photo.width(); }
    int height() const { return photo.height(); }
};

constexpr int backgrounds = 3; // wall, sky, meadow; from there on one by chance, of the seed

Photograph photograph(const Subject& subject, int background, const Camera& camera,
                      std::uint32_t seed);

} // namespace pelmira::bench
