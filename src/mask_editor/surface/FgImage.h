#pragma once

#include <QPointF>
#include <QSizeF>

#include <GLES2/gl2.h>

namespace pelmira {

/// The photo's place on the screen and its GL names. One unit is the shorter side of the screen.
struct FgImage {
    QPointF center;                   ///< units, y up, from the screen's centre
    QSizeF size;                      ///< displayed size in units at `scale` 1
    double scale = 1.0;               ///< zoom
    double rotation = 0.0;            ///< radians; positive turns clockwise on the screen
    double originalAspectRatio = 1.0; ///< pixel width / pixel height
    QSizeF imageRes;                  ///< pixels
    GLuint texture = 0;               ///< 0 while no photo is open, which every tool tests
    GLuint frameBuffer = 0;           ///< has `texture` as its colour attachment
};

} // namespace pelmira
