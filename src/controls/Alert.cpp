#include "controls/Alert.h"

#include "platform/text/LocalizedStrings.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr double margin = 8.0; // to the rectangle and to the window's edges

} // namespace

Alert::Texts::Texts(QString titleText, QString messageText, QString cancelTitle,
                    QStringList actionTitles)
    : title(std::move(titleText)), message(std::move(messageText)),
      cancelButtonTitle(std::move(cancelTitle)), actionButtonTitles(std::move(actionTitles))
{
}

Alert::Texts::Texts(QString titleText, QString messageText, QString cancelTitle,
                    QString actionTitle)
    : Texts(std::move(titleText), std::move(messageText), std::move(cancelTitle),
            QStringList{std::move(actionTitle)})
{
}

void Alert::show(Texts texts, std::function<void(const QString&)> actionBlock, QRectF sourceRect)
{
    _texts = std::move(texts);
    _actionBlock = std::move(actionBlock);
    _sourceRect = sourceRect;
    setOpen(true);
}

void Alert::show(Texts texts, std::function<void()> action)
{
    show(std::move(texts), [action = std::move(action)](const QString&) {
        if (action)
            action();
    });
}

void Alert::showMessage(const QString& message, const QString& title)
{
    show({title, message, localized("generic.done"), QStringList()}, [](const QString&) {});
}

void Alert::showMessageInTurn(const QString& message)
{
    if (!_isOpen) {
        showMessage(message);
        return;
    }
    connect(
        this, &Alert::changed, this, [this, message] { showMessageInTurn(message); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void Alert::dismiss()
{
    if (!_isOpen)
        return;
    _actionBlock = nullptr;
    setOpen(false);
}

void Alert::actionButtonPressed(int index)
{
    if (!_isOpen || index < 0 || index >= _texts.actionButtonTitles.size())
        return;
    const QString title = _texts.actionButtonTitles[index];
    const auto actionBlock = std::exchange(_actionBlock, nullptr);
    setOpen(false);
    if (actionBlock)
        actionBlock(title);
}

void Alert::buttonPressed(bool isAction)
{
    if (isAction && !_texts.actionButtonTitles.isEmpty())
        actionButtonPressed(0);
    else
        dismiss();
}

QPointF Alert::positionForCard(QSizeF card, QRectF sourceRect, QSizeF window)
{
    const QSizeF room = window - card;
    if (sourceRect.isEmpty())
        return {room.width() / 2.0, room.height() / 2.0};
    // Above is out of the way of the finger.
    const double above = sourceRect.top() - margin - card.height();
    const double y = above >= margin ? above : sourceRect.bottom() + margin;
    const auto inside = [](double value, double space) {
        return std::max(0.0, std::clamp(value, std::min(margin, space / 2.0),
                                        std::max(space - margin, space / 2.0)));
    };
    return {inside(sourceRect.center().x() - card.width() / 2.0, room.width()),
            inside(y, room.height())};
}

void Alert::setOpen(bool isOpen)
{
    _isOpen = isOpen;
    Q_EMIT changed();
}

} // namespace pelmira
