#pragma once

#include "platform/portal/PortalRequest.h"
#include "platform/portal/SessionBus.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QWindow;

namespace pelmira {

/// The desktop's dialog for files (org.freedesktop.portal.FileChooser). In a sandbox it is also
/// what makes the chosen file readable.
class FileChooser {
public:
    /// The path is empty unless something was chosen. Where the portal is unavailable, the caller
    /// shows a dialog of its own.
    using Completion = std::function<void(PortalOutcome, const QString& path)>;

    /// Which files are offered.
    struct Filter {
        QString name; ///< for the user
        QStringList mimeTypes;
    };

    explicit FileChooser(QDBusConnection bus = sessionBus());

    /// One dialog at a time: a second one takes the place of the first, whose completion isn't
    /// called any more; neither is it after the chooser's end.
    void chooseFile(const QWindow* parent, const QString& title, const Filter& filter,
                    Completion completion);
    void chooseFolder(const QWindow* parent, const QString& title, Completion completion);

private:
    void open(const QWindow* parent, const QString& title, const QVariantMap& options,
              Completion completion);

    QDBusConnection _bus;
    std::unique_ptr<PortalRequest> _request;
};

} // namespace pelmira
