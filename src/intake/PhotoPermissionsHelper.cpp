#include "intake/PhotoPermissionsHelper.h"

#include "platform/base/RunInBackground.h"
#include "platform/storage/UserDefaults.h"
#include "platform/text/LocalizedStrings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

#include <unistd.h>
#include <utility>

namespace pelmira {
namespace {

const QString chosenFolderKey = QStringLiteral("photosFolder");

bool allows(const QString& folder, int access)
{
    return ::access(QFile::encodeName(folder).constData(), access) == 0;
}

} // namespace

QString PhotoPermissionsHelper::photosFolder()
{
    const auto chosen = UserDefaults::standardUserDefaults().stringForKey(chosenFolderKey);
    if (chosen && isAuthorised(*chosen))
        return *chosen;
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

void PhotoPermissionsHelper::setPhotosFolder(const QString& folder)
{
    UserDefaults::standardUserDefaults().setString(folder, chosenFolderKey);
}

bool PhotoPermissionsHelper::isAuthorised(const QString& folder)
{
    const PermissionStatus status = authorizationStatus(folder);
    return status == PermissionStatus::Authorized || status == PermissionStatus::Limited;
}

PermissionStatus PhotoPermissionsHelper::authorizationStatus(const QString& folder)
{
    const QFileInfo info(folder);
    if (!info.exists()) {
        // What lies behind a folder that can't be searched, or in place of one, won't come either.
        QFileInfo ancestor(info.absolutePath());
        while (!ancestor.exists() && !ancestor.isRoot())
            ancestor.setFile(ancestor.absolutePath());
        return ancestor.isDir() && allows(ancestor.filePath(), W_OK | X_OK)
                   ? PermissionStatus::NotDetermined
                   : PermissionStatus::Denied;
    }
    if (!info.isDir() || !allows(folder, R_OK | X_OK))
        return PermissionStatus::Denied;
    return allows(folder, W_OK) ? PermissionStatus::Authorized : PermissionStatus::Limited;
}

void PhotoPermissionsHelper::requestPhotosAccessWithCompletion(
    std::function<void(PermissionStatus)> completion, const QString& folder)
{
    runInBackground(
        [folder] {
            if (authorizationStatus(folder) == PermissionStatus::NotDetermined)
                QDir().mkpath(folder);
            return authorizationStatus(folder);
        },
        std::move(completion));
}

void PhotoPermissionsHelper::ensurePhotoWriteAccessPostiOS14WithVc(
    Alert& alert, std::function<void()> onSuccess, std::function<void()> openSettings,
    const QString& folder)
{
    requestPhotosAccessWithCompletion(
        [screen = QPointer<Alert>(&alert), onSuccess = std::move(onSuccess),
         openSettings = std::move(openSettings)](PermissionStatus status) {
            if (status == PermissionStatus::Authorized || status == PermissionStatus::Limited)
                onSuccess(); // a folder that can't be written is told of when it is
            else if (status != PermissionStatus::NotDetermined && screen)
                screen->show({{},
                              localized("generic.access.photos"),
                              localized("generic.no"),
                              localized("generic.access.settings")},
                             openSettings);
        },
        folder);
}

} // namespace pelmira
