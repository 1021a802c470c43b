#pragma once

#include <QColor>
#include <QObject>

namespace pelmira {

/// What a screen decides about one of its buttons. The layout file shows it; a button that the
/// screen doesn't offer is a null pointer there.
class InterfaceButton : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged)
    Q_PROPERTY(QColor tintColor READ tintColor WRITE setTintColor NOTIFY tintColorChanged)
public:
    explicit InterfaceButton(QObject* parent = nullptr) : QObject(parent) {}

    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled);
    bool isSelected() const { return _selected; }
    void setSelected(bool selected);
    QColor tintColor() const { return _tintColor; }
    void setTintColor(const QColor& color);
    /// What the button stands for, where several share one action.
    int tag() const { return _tag; }
    void setTag(int tag) { _tag = tag; }

Q_SIGNALS:
    void enabledChanged();
    void selectedChanged();
    void tintColorChanged();

private:
    bool _enabled = true;
    bool _selected = false;
    QColor _tintColor = Qt::white;
    int _tag = 0;
};

} // namespace pelmira
