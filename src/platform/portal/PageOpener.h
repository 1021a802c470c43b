#pragma once

#include "platform/portal/PortalRequest.h"
#include "platform/portal/SessionBus.h"

#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>
#include <memory>

class QProcess;
class QWindow;

namespace pelmira {

/// Shows pages of the net in the user's browser: through the portal (OpenURI), or with xdg-open
/// where there is none.
class PageOpener final : public QObject {
    Q_OBJECT

public:
    /// Whether the user was shown anything.
    using Completion = std::function<void(bool wasPresented)>;

    explicit PageOpener(QDBusConnection bus = sessionBus());
    ~PageOpener() override;

    /// The completion is called once, from the event loop, if nothing else is opened meanwhile and
    /// this still exists.
    void openPage(const QWindow* parent, const QUrl& page, Completion completion);
    /// The same without asking the portal.
    void openWithProgram(const QUrl& page, Completion completion);

private:
    void finish(bool wasPresented);

    QDBusConnection _bus;
    std::unique_ptr<PortalRequest> _request;
    QPointer<QProcess> _program; ///< outlives this: it may be the browser itself
    Completion _completion;
};

} // namespace pelmira
