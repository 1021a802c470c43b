#include "platform/portal/DesktopSettings.h"

#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>

namespace pelmira {
namespace {

struct SettingsPage {
    const char* desktop; ///< as in XDG_CURRENT_DESKTOP
    const char* program;
    const char* page;
};

constexpr std::array<SettingsPage, 3> pages{{
    {"GNOME", "gnome-control-center", "applications"}, // also the phone's shell built on it
    {"KDE", "systemsettings", "kcm_app-permissions"},
    {"KDE", "systemsettings5", "kcm_flatpak"},
}};

} // namespace

bool openAppPermissionSettings()
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    return std::any_of(pages.begin(), pages.end(), [&](const SettingsPage& each) {
        if (!desktops.contains(QLatin1String(each.desktop)))
            return false;
        const QString program = QStandardPaths::findExecutable(QLatin1String(each.program));
        return !program.isEmpty() && QProcess::startDetached(program, {QLatin1String(each.page)});
    });
}

} // namespace pelmira
