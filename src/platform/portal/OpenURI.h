#pragma once

#include "platform/portal/PortalRequest.h"
#include "platform/portal/SessionBus.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QWindow;

namespace pelmira {

/// Hands files, folders and pages to other programs (org.freedesktop.portal.OpenURI).
class OpenURI {
public:
    using Completion = std::function<void(PortalOutcome)>;

    explicit OpenURI(QDBusConnection bus = sessionBus());

    /// Asks the user which program shall get the file. One question at a time: a second one takes
    /// the place of the first, whose completion isn't called any more.
    void openWith(const QWindow* parent, const QString& path, Completion completion);
    /// Shows the folder of a file in the file manager.
    void openDirectory(const QWindow* parent, const QString& path, Completion completion);

    /// A web page or a folder, with the program that the desktop has for it; false without one.
    static bool openUri(const QUrl& uri);

private:
    void open(const QString& method, const QWindow* parent, const QString& path,
              const QVariantMap& options, Completion completion);

    QDBusConnection _bus;
    std::unique_ptr<PortalRequest> _request;
};

} // namespace pelmira
