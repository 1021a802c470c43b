#pragma once

#include "settings/SettingsCellEntry.h"

#include <utility>

namespace pelmira {

/// A row that is all said when it is made.
class BasicSettingsEntry final : public SettingsCellEntry {
public:
    BasicSettingsEntry(QString cellId, QString title, TapBlock tapBlock)
        : _cellId(std::move(cellId)), _title(std::move(title)), _tapBlock(std::move(tapBlock))
    {
    }

    QString cellId() const override { return _cellId; }
    QString title() const override { return _title; }
    TapBlock tapBlock() const override { return _tapBlock; }

private:
    QString _cellId;
    QString _title;
    TapBlock _tapBlock;
};

} // namespace pelmira
