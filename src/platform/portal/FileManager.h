#pragma once

#include "platform/portal/OpenURI.h"
#include "platform/portal/SessionBus.h"

#include <QObject>
#include <QString>

class QWindow;

namespace pelmira {

/// The desktop's file manager (org.freedesktop.FileManager1).
class FileManager final : public QObject {
    Q_OBJECT

public:
    explicit FileManager(QDBusConnection bus = sessionBus());

    /// Shows the file, selected, in its folder. Where no file manager listens: through the portal,
    /// and without one, the folder in whatever opens folders.
    void showFile(const QWindow* parent, const QString& path);

private:
    QDBusConnection _bus;
    OpenURI _openURI;
};

} // namespace pelmira
