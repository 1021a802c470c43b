#pragma once

#include <QString>
#include <QUrl>

namespace pelmira {

/// The address of a layout file of the application, by its name without folder and suffix.
inline QUrl layoutUrl(const char* name)
{
    return QUrl(
        QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/%1.qml").arg(QLatin1String(name)));
}

} // namespace pelmira
