#pragma once

#include <QRectF>
#include <QString>

#include <functional>

namespace pelmira {

/// A row of the settings.
class SettingsCellEntry {
public:
    /// Gets the frame of the row's cell in the screen, in points; empty if the cell isn't seen.
    using TapBlock = std::function<void(QRectF cell)>;

    virtual ~SettingsCellEntry() = default;

    /// Which kind of cell shows the row.
    virtual QString cellId() const = 0;
    virtual QString title() const = 0;
    virtual TapBlock tapBlock() const = 0;
};

} // namespace pelmira
