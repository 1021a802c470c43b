#pragma once

#include "support/TemporaryFolder.h"

#include <QProcessEnvironment>

namespace pelmira::test {

/// The environment of a process that has the folder for its home, and no bus of the session's.
inline QProcessEnvironment environmentIn(const TemporaryFolder& home, const char* platform)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable :
         {"WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_DATA_HOME", "XDG_CONFIG_HOME",
          "XDG_CACHE_HOME", "XDG_PICTURES_DIR", "QT_QUICK_BACKEND"})
        environment.remove(QLatin1String(variable));
    for (const auto& [name, value] :
         {std::pair{"QT_QPA_PLATFORM", platform}, {"LC_ALL", "C.UTF-8"}, {"LANGUAGE", ""}})
        environment.insert(QLatin1String(name), QLatin1String(value));
    environment.insert(QStringLiteral("HOME"), home.path());
    QDir().mkpath(home.path("tmp"));
    environment.insert(QStringLiteral("TMPDIR"), home.path("tmp"));
    return environment;
}

} // namespace pelmira::test
