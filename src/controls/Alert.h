#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <utility>

namespace pelmira {

/// A question over a screen, with a button that cancels and one that acts. The layout file shows it
/// while it is open and tells which button was pressed.
class Alert final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString cancelButtonTitle READ cancelButtonTitle NOTIFY changed)
    Q_PROPERTY(QString actionButtonTitle READ actionButtonTitle NOTIFY changed)

public:
    struct Texts {
        QString title;
        QString message;
        QString cancelButtonTitle;
        QString actionButtonTitle;
    };

    using QObject::QObject;

    /// Asks; the action runs only if its button is pressed. One question at a time: a new one
    /// takes the place of one still open.
    void show(Texts texts, std::function<void()> action)
    {
        _texts = std::move(texts);
        _action = std::move(action);
        setOpen(true);
    }

    Q_INVOKABLE void buttonPressed(bool isAction)
    {
        if (!_isOpen)
            return;
        setOpen(false);
        const std::function<void()> action = std::exchange(_action, nullptr);
        if (isAction && action)
            action();
    }

    bool isOpen() const { return _isOpen; }
    QString title() const { return _texts.title; }
    QString message() const { return _texts.message; }
    QString cancelButtonTitle() const { return _texts.cancelButtonTitle; }
    QString actionButtonTitle() const { return _texts.actionButtonTitle; }

Q_SIGNALS:
    void changed();

private:
    void setOpen(bool isOpen)
    {
        _isOpen = isOpen;
        Q_EMIT changed();
    }

    Texts _texts;
    std::function<void()> _action;
    bool _isOpen = false;
};

} // namespace pelmira
