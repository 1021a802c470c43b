#include "background_editor/filters/FilterContext.h"

#include "background_editor/filters/ImageFilters.h"

namespace pelmira {

QImage FilterContext::blurredImage(const QImage& image, double inputRadius, bool isWrapped)
{
    return gaussianBlurred(image, inputRadius, isWrapped ? Beyond::Tiles : Beyond::EdgePixels);
}

QImage FilterContext::adjustedImage(const QImage& image, double inputEV, double inputAngle)
{
    return hueAdjusted(exposureAdjusted(image, inputEV), inputAngle);
}

} // namespace pelmira
