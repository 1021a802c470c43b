#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>

namespace pelmira {

/// A question or a message over a screen, with a button that cancels and any number that act. The
/// layout file shows it while it is open and tells which button was pressed.
class Alert final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString cancelButtonTitle READ cancelButtonTitle NOTIFY changed)
    Q_PROPERTY(QStringList actionButtonTitles READ actionButtonTitles NOTIFY changed)
    Q_PROPERTY(QRectF sourceRect READ sourceRect NOTIFY changed)

public:
    struct Texts {
        Texts() = default;
        Texts(QString titleText, QString messageText, QString cancelTitle,
              QStringList actionTitles);
        Texts(QString titleText, QString messageText, QString cancelTitle, QString actionTitle);

        QString title;
        QString message;
        QString cancelButtonTitle;
        QStringList actionButtonTitles; ///< in the order in which they are shown
    };

    using QObject::QObject;

    /// Asks; the block gets the title of the action that was pressed, and nothing on a cancel. One
    /// question at a time: a new one takes the place of one still open. With a rectangle of the
    /// screen, in points, the question stands next to it, otherwise in the middle.
    void show(Texts texts, std::function<void(const QString& title)> actionBlock,
              QRectF sourceRect = {});
    /// The same, for a single action.
    void show(Texts texts, std::function<void()> action);
    /// Tells something that can only be read, in place of a question still open.
    void showMessage(const QString& message, const QString& title = {});
    /// The same once nothing is open any more: a question that stands comes first.
    void showMessageInTurn(const QString& message);
    /// Closes it without an answer.
    void dismiss();

    Q_INVOKABLE void actionButtonPressed(int index);
    /// The first action, which is also the one of the Enter key, or the cancelling button.
    Q_INVOKABLE void buttonPressed(bool isAction);

    /// Where a card of the given size stands in a window, in points: its upper left corner. Above
    /// the rectangle, below it where there is no room, always inside; without one in the middle.
    Q_INVOKABLE static QPointF positionForCard(QSizeF card, QRectF sourceRect, QSizeF window);

    bool isOpen() const { return _isOpen; }
    QString title() const { return _texts.title; }
    QString message() const { return _texts.message; }
    QString cancelButtonTitle() const { return _texts.cancelButtonTitle; }
    QStringList actionButtonTitles() const { return _texts.actionButtonTitles; }
    QRectF sourceRect() const { return _sourceRect; }

Q_SIGNALS:
    void changed();

private:
    void setOpen(bool isOpen);

    Texts _texts;
    std::function<void(const QString&)> _actionBlock;
    QRectF _sourceRect;
    bool _isOpen = false;
};

} // namespace pelmira
