#pragma once

#include "platform/base/RunLoop.h"

#include <QObject>
#include <QString>

#include <functional>

namespace pelmira {

/// A small card over a screen: tells of work under way, or for a moment that it is done. It takes
/// no part in the work and keeps no touch from the screen. Main thread only.
class ZKLProgressHUD final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY changed)
    Q_PROPERTY(bool isSuccess READ isSuccess NOTIFY changed)
    Q_PROPERTY(bool isError READ isError NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY changed)
    Q_PROPERTY(bool isActionEnabled READ isActionEnabled NOTIFY changed)

public:
    using QObject::QObject;

    /// Work is under way, until the next call.
    void show(const QString& status = {});
    /// Done. The card goes by itself; one with more to read or to press stays longer. The action's
    /// button can be pressed once setAction has given it something to do.
    void showSuccessWithStatus(const QString& status, const QString& detail = {},
                               const QString& actionTitle = {});
    /// It went wrong. The card goes by itself.
    void showErrorWithStatus(const QString& status);
    void setAction(std::function<void()> action);
    Q_INVOKABLE void dismiss();

    Q_INVOKABLE void actionButtonPressed();

    bool isVisible() const { return _content.kind != Kind::Hidden; }
    bool isSuccess() const { return _content.kind == Kind::Success; }
    bool isError() const { return _content.kind == Kind::Error; }
    QString status() const { return _content.status; }
    QString detail() const { return _content.detail; }
    QString actionTitle() const { return _content.actionTitle; }
    bool isActionEnabled() const { return _content.action != nullptr; }

Q_SIGNALS:
    void changed();

private:
    enum class Kind { Hidden, Working, Success, Error };
    struct Content {
        Kind kind = Kind::Hidden;
        QString status;
        QString detail;
        QString actionTitle;
        std::function<void()> action;
    };

    void setContent(Content content);

    Content _content;
    Timer _timer;
};

} // namespace pelmira
