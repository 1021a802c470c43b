#pragma once

#include "promotion/CrossPromoteEntry.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <utility>

namespace pelmira {

/// An entry as it is shown: with its icon, once that has come.
class CrossPromoteItem final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(bool isShown READ isShown CONSTANT)
    Q_PROPERTY(bool canBeOpened READ canBeOpened CONSTANT)
    Q_PROPERTY(QImage icon READ icon NOTIFY iconChanged)
    Q_PROPERTY(bool hasIconFailed READ hasIconFailed NOTIFY iconChanged)

public:
    explicit CrossPromoteItem(CrossPromoteEntry entry) : _entry(std::move(entry)) {}

    const CrossPromoteEntry& entry() const { return _entry; }
    QString name() const { return _entry.name; }
    bool isShown() const { return _entry.isShown; }
    bool canBeOpened() const { return _entry.appleId.has_value(); }
    /// Null until it has come; the layout then shows the placeholder, or that it has failed.
    QImage icon() const { return _icon; }
    bool hasIconFailed() const { return _hasIconFailed; }
    /// A null icon has failed.
    void setIcon(const QImage& icon)
    {
        _icon = icon;
        _hasIconFailed = icon.isNull();
        Q_EMIT iconChanged();
    }
    /// True once: the icon is to be fetched now.
    bool beginLoadingIcon() { return !std::exchange(_isIconAsked, true); }

Q_SIGNALS:
    void iconChanged();

private:
    const CrossPromoteEntry _entry;
    QImage _icon;
    bool _isIconAsked = false;
    bool _hasIconFailed = false;
};

} // namespace pelmira
