#include "mask_editor/brush/BrushPreferences.h"

#include <limits>

namespace pelmira {
namespace {

const QString typeKey = QStringLiteral("savedBrushType");

} // namespace

double BrushPreferences::saved(const char* key, float defaultValue) const
{
    const float value = _defaults.floatForKey(QLatin1String(key)).value_or(defaultValue);
    // No control gives any other, or could show it: the file is damaged.
    return double(value >= 0 && value <= 1 ? value : defaultValue);
}

void BrushPreferences::save(const char* key, double value)
{
    _defaults.setFloat(float(value), QLatin1String(key));
    _defaults.synchronize();
}

int BrushPreferences::savedBrushType() const
{
    const std::int64_t raw = _defaults.integerForKey(typeKey).value_or(0);
    return raw >= 0 && raw <= std::numeric_limits<int>::max() ? static_cast<int>(raw) : 0;
}

void BrushPreferences::saveBrushType(int type)
{
    _defaults.setInteger(type, typeKey);
    _defaults.synchronize();
}

} // namespace pelmira
