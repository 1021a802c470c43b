#include "mask_editor/drawing/WandMagnifier.h"

#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>

namespace pelmira {
namespace {

struct ZoomVertex {
    float x, y, z;
    float u, v; // on the photo
    float s, t; // across the magnifier
};

// On a large window a quarter of the width would hide the photo, and the pointer too.
constexpr double longestSide = 160.0; // points

} // namespace

QRectF wandZoomBox(QPointF point, double viewWidth)
{
    const double side = std::min(viewWidth * 0.25, longestSide);
    const double half = side * 0.5;
    const double above = std::max(half * 0.5 + 36.0, half + 8.0);
    return {point.x() - half, point.y() - above - half, side, side};
}

void renderWandZoomAtScreenPos(QPointF point, const EditorCanvas& canvas, const ShaderSet& shaders,
                               DestinationReader& reader)
{
    const FgImage& fg = canvas.fgImage;
    const QSizeF bounds = canvas.viewSize();
    const QRectF box = wandZoomBox(point, bounds.width());
    const double half = box.width() * 0.5;
    const QPointF centre(box.center().x(), bounds.height() - box.center().y()); // y up

    const QPointF mask = canvas.maskPosForScreenPos(point);
    const double uCentre = mask.x() / fg.imageRes.width() + 0.5;
    const double vCentre = mask.y() / fg.imageRes.height() + 0.5;
    // A tenth of the photo's width at zoom 1; the factor keeps its pixels square.
    const double e = 0.05 / fg.scale;
    const double f = e * fg.originalAspectRatio;
    const double cosine = std::cos(-fg.rotation);
    const double sine = std::sin(-fg.rotation);

    const auto corner = [&](double right, double up) {
        const double du = right * e;
        const double dv = -up * f;
        return ZoomVertex{float(centre.x() + right * half),
                          float(centre.y() + up * half),
                          0.0F,
                          float(uCentre + du * cosine - dv * sine),
                          float(vCentre + du * sine + dv * cosine),
                          right > 0 ? 1.0F : 0.0F,
                          up > 0 ? 0.0F : 1.0F};
    };
    const std::array corners{corner(-1, -1), corner(-1, 1), corner(1, -1), corner(1, 1)};

    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glEnableVertexAttribArray(AttributePosition);
    glEnableVertexAttribArray(AttributeTexCoord);
    glEnableVertexAttribArray(AttributeTexCoord2);
    glVertexAttribPointer(AttributePosition, 3, GL_FLOAT, GL_FALSE, sizeof(ZoomVertex),
                          &corners[0].x);
    glVertexAttribPointer(AttributeTexCoord, 2, GL_FLOAT, GL_FALSE, sizeof(ZoomVertex),
                          &corners[0].u);
    glVertexAttribPointer(AttributeTexCoord2, 2, GL_FLOAT, GL_FALSE, sizeof(ZoomVertex),
                          &corners[0].s);

    if (!shaders.wandZoomProgram.use(canvas.setupWandBrushMatrix()))
        return;
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, fg.texture);
    glUniform1i(shaders.wandZoomProgram.texture, 0);
    glUniform2f(shaders.wandZoomProgram.imageSize, float(fg.imageRes.width()),
                float(fg.imageRes.height()));
    reader.draw(shaders.wandZoomProgram, canvas.framebufferRectangle(box));
    glDisableVertexAttribArray(AttributeTexCoord2);
}

} // namespace pelmira
