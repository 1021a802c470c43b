#include "platform/quick/Pane.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickWindow>

#include <algorithm>
#include <vector>

namespace pelmira {
namespace {

/// Qt's own would give out the children of a disabled item like any others.
class PaneInterface final : public QAccessibleObject {
public:
    explicit PaneInterface(Pane* pane) : QAccessibleObject(pane) {}

    QAccessibleInterface* parent() const override
    {
        for (QQuickItem* above = pane()->parentItem(); above; above = above->parentItem())
            if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(above))
                return known;
        return QAccessible::queryAccessibleInterface(window());
    }
    QAccessibleInterface* child(int index) const override
    {
        const std::vector<QAccessibleInterface*> all = children();
        return index >= 0 && index < int(all.size()) ? all[std::size_t(index)] : nullptr;
    }
    int childCount() const override { return int(children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const std::vector<QAccessibleInterface*> all = children();
        const auto found = std::find(all.begin(), all.end(), child);
        return found == all.end() ? -1 : int(found - all.begin());
    }
    QWindow* window() const override { return pane()->window(); }
    QRect rect() const override
    {
        const QRect inWindow = pane()->mapRectToScene(pane()->boundingRect()).toRect();
        return window() ? inWindow.translated(window()->position()) : inWindow;
    }
    QAccessible::Role role() const override { return QAccessible::Pane; }
    QString text(QAccessible::Text) const override { return {}; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !pane()->isVisible();
        state.disabled = !pane()->isEnabled();
        return state;
    }

private:
    Pane* pane() const { return static_cast<Pane*>(object()); }

    std::vector<QAccessibleInterface*> children() const
    {
        std::vector<QAccessibleInterface*> found;
        if (pane()->isEnabled())
            gather(*pane(), found);
        return found;
    }
    // What isn't known itself may hold what is.
    static void gather(const QQuickItem& parent, std::vector<QAccessibleInterface*>& found)
    {
        for (QQuickItem* item : parent.childItems()) {
            if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(item))
                found.push_back(known);
            else
                gather(*item, found);
        }
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className != QLatin1String(Pane::staticMetaObject.className()))
        return nullptr;
    return new PaneInterface(static_cast<Pane*>(object));
}

} // namespace

Pane::Pane(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
    setFocus(true);
}

void Pane::installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

void Pane::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemEnabledHasChanged && data.boolValue)
        setFocus(true);
}

} // namespace pelmira
