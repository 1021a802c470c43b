#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace pelmira {

enum class PortalOutcome {
    Done,
    Cancelled,   ///< by the user, who has seen the dialog
    Unavailable, ///< no bus, no portal, or one that refused or went away
};

/// A question to a desktop portal, which answers by a signal when the user has decided
/// (org.freedesktop.portal.Request). The completion is called once, from the event loop, unless the
/// request is destroyed before: that closes its dialog.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(PortalOutcome, const QVariantMap& results)>;

    /// Calls a method of an interface "org.freedesktop.portal.NAME" whose last argument is a table
    /// of options; those before it are `arguments`.
    PortalRequest(const QDBusConnection& bus, const QString& name, const QString& method,
                  const QVariantList& arguments, QVariantMap options, Completion completion);
    ~PortalRequest() override;

private Q_SLOTS:
    void responded(uint code, const QVariantMap& results);
    void busLost();

private:
    void finish(PortalOutcome outcome, const QVariantMap& results = {});
    void close();

    QDBusConnection _bus;
    QString _path; ///< of the request's object; empty until the portal may know it
    Completion _completion;
    bool _isFinished = false;
};

} // namespace pelmira
