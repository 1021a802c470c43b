#pragma once

#include <QQuickItem>

namespace pelmira {

/// What a screen shows apart from its questions. Keyboard and assistive technology find it empty
/// while it is disabled, as it is behind a question or another screen; enabled again, the item that
/// had the keyboard has it back. To be given an accessible role, which is what makes it known.
class Pane : public QQuickItem {
    Q_OBJECT

public:
    explicit Pane(QQuickItem* parent = nullptr);

    /// To be called once before the first of them is shown.
    static void installAccessibility();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
};

} // namespace pelmira
