#pragma once

#include "controls/InterfaceButton.h"

#include <QRectF>
#include <QString>

#include <utility>

namespace pelmira {

/// A tab: an icon over its title.
class TabButton final : public InterfaceButton {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString imageName READ imageName CONSTANT)
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)
public:
    /// The image is the name of an icon.
    TabButton(QString title, QString imageName, QObject* parent)
        : InterfaceButton(parent), _title(std::move(title)), _imageName(std::move(imageName))
    {
    }

    QString title() const { return _title; }
    QString imageName() const { return _imageName; }
    /// In the row.
    QRectF frame() const { return _frame; }
    void setFrame(const QRectF& frame)
    {
        if (frame == _frame)
            return;
        _frame = frame;
        Q_EMIT frameChanged();
    }

Q_SIGNALS:
    void frameChanged();

private:
    const QString _title;
    const QString _imageName;
    QRectF _frame;
};

} // namespace pelmira
