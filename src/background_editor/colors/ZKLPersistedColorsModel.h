#pragma once

#include "platform/storage/UserDefaults.h"

#include <QString>

#include <vector>

namespace pelmira {

/// The user's favourite colours, newest first, kept across runs: one flat list of channels, three
/// a colour. Main thread.
class ZKLPersistedColorsModel {
public:
    /// Each channel from 0 to 1.
    struct Color {
        float r = 0.0F;
        float g = 0.0F;
        float b = 0.0F;
    };

    const QString key = QStringLiteral("savedColors");
    static constexpr int maxSavedColors = 30;

    /// Reads what is kept; what doesn't look like colours is dropped, from the preferences too.
    /// They outlive the model.
    explicit ZKLPersistedColorsModel(UserDefaults& defaults);

    const std::vector<Color>& colors() const { return _colors; }
    /// Puts the colour first, in place of one that looks the same, and saves.
    void add(float r, float g, float b);

private:
    void load();
    void save();

    UserDefaults& _defaults;
    std::vector<Color> _colors;
};

} // namespace pelmira
