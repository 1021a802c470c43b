#include "background_editor/patterns/BGEPatternView.h"

#include "background_editor/patterns/ZKLPatterns.h"
#include "platform/base/RunLoop.h"

#include <QPointer>

namespace pelmira {
namespace {

constexpr int cellRole = Qt::UserRole;

} // namespace

BGEPatternView::BGEPatternView(QObject* parent)
    : QAbstractListModel(parent), _patternNames(ZKLPatterns::shared().patternNames()),
      _cells(_patternNames.size()), _thumbnails(globalQueue(QueuePriority::UserInitiated))
{
}

BGEPatternView::~BGEPatternView()
{
    // Nobody can paint any more once the application object has gone.
    _thumbnails.cancelAllOperations();
    _thumbnails.waitUntilAllOperationsAreFinished();
}

BGEPatternCell* BGEPatternView::cellForItem(int item)
{
    if (item < 0 || item >= _cells.size())
        return nullptr;
    BGEPatternCell*& cell = _cells[item];
    if (cell)
        return cell;
    cell = new BGEPatternCell(this);
    cell->setMySelected(item == _selectedPatternIndex);
    _thumbnails.addOperation([shown = QPointer(cell), name = _patternNames.at(item)] {
        mainQueue().async([shown, thumbnail = ZKLPatterns::shared().thumbnailForName(name)] {
            if (shown)
                shown->setImage(thumbnail);
        });
    });
    return cell;
}

void BGEPatternView::didSelectItem(int item)
{
    if (item < 0 || item >= _cells.size())
        return;
    _selectedPatternIndex = item;
    if (patternChangedBlock)
        patternChangedBlock(item);
    for (int i = 0; i < _cells.size(); ++i)
        if (BGEPatternCell* cell = _cells.at(i))
            cell->setMySelected(i == _selectedPatternIndex);
}

int BGEPatternView::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_cells.size());
}

QVariant BGEPatternView::data(const QModelIndex& index, int role) const
{
    if (role != cellRole || !index.isValid())
        return {};
    // Reading is what shows a cell; making it is no change of the model that others could see.
    return QVariant::fromValue(const_cast<BGEPatternView*>(this)->cellForItem(index.row()));
}

QHash<int, QByteArray> BGEPatternView::roleNames() const
{
    return {{cellRole, "cell"}};
}

} // namespace pelmira
