#pragma once

#include "platform/storage/UserDefaults.h"

namespace pelmira {

/// What the user last chose for the brush, kept between launches and written at every change. The
/// unit values run from 0 to 1; one that was never chosen, or isn't within, has its default.
class BrushPreferences {
public:
    explicit BrushPreferences(UserDefaults& defaults) : _defaults(defaults) {}

    double savedUnitBrushSize() const { return saved("unitBrushSize", 0.14F); }
    double savedUnitBrushSoft() const { return saved("unitBrushSoft", 0.1F); }
    double savedUnitBrushOffset() const { return saved("unitBrushOffset", 0.0F); }
    /// The raw value of a `BrushType`; a stored one that is no type is given as it is.
    int savedBrushType() const;

    void saveUnitBrushSize(double value) { save("unitBrushSize", value); }
    void saveUnitBrushSoft(double value) { save("unitBrushSoft", value); }
    void saveUnitBrushOffset(double value) { save("unitBrushOffset", value); }
    void saveBrushType(int type);

private:
    double saved(const char* key, float defaultValue) const;
    void save(const char* key, double value);

    UserDefaults& _defaults;
};

} // namespace pelmira
