#pragma once

#include "background_editor/patterns/BGEPatternCell.h"
#include "platform/base/OperationQueue.h"

#include <QAbstractListModel>
#include <QList>
#include <QStringList>

#include <functional>

namespace pelmira {

/// The panel of patterns: a cell for each, of which one may be selected. Thumbnails are drawn off
/// the main thread, each when its cell is first shown.
class BGEPatternView final : public QAbstractListModel {
    Q_OBJECT

public:
    explicit BGEPatternView(QObject* parent = nullptr);
    ~BGEPatternView() override;

    /// The item that was picked.
    std::function<void(int)> patternChangedBlock;

    /// The library's, as they were when the panel was made; items are places in it.
    const QStringList& patternNames() const { return _patternNames; }
    /// -1 until the first pick. What was picked stays marked, whatever is chosen elsewhere later.
    int selectedPatternIndex() const { return _selectedPatternIndex; }
    /// Owned by the panel. Asking for it has its thumbnail drawn.
    BGEPatternCell* cellForItem(int item);
    /// Also of the one that is selected already. Does nothing without such an item.
    Q_INVOKABLE void didSelectItem(int item);

    // For the collection in the layout file: one role, `cell`.

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    const QStringList _patternNames;
    int _selectedPatternIndex = -1;
    QList<BGEPatternCell*> _cells; ///< null for those never shown
    OperationQueue _thumbnails;    ///< one at a time, so that the cores stay free for what is on
};

} // namespace pelmira
