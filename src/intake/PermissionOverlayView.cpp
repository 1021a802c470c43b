#include "intake/PermissionOverlayView.h"

#include "intake/PhotoPermissionsHelper.h"
#include "platform/text/LocalizedStrings.h"

#include <QDir>

#include <utility>

namespace pelmira {

PermissionOverlayView::PermissionOverlayView(
    PermissionStatus status, std::function<void(FileDialogs::Completion)> chooseFolder)
    : _status(status), _chooseFolder(std::move(chooseFolder))
{
}

void PermissionOverlayView::handleAllow()
{
    if (canAsk()) {
        PhotoPermissionsHelper::requestPhotosAccessWithCompletion(
            [overlay = weak_from_this()](PermissionStatus status) {
                if (const auto held = overlay.lock())
                    held->takeStatus(status);
            });
    } else if (_chooseFolder) {
        _chooseFolder([overlay = weak_from_this()](const QString& folder) {
            const auto held = overlay.lock();
            if (held)
                held->takeFolder(folder);
        });
    }
}

void PermissionOverlayView::takeStatus(PermissionStatus status)
{
    _status = status;
    if (status == PermissionStatus::Authorized || status == PermissionStatus::Limited)
        done();
    else
        Q_EMIT changed();
}

void PermissionOverlayView::takeFolder(const QString& folder)
{
    if (PhotoPermissionsHelper::isAuthorised(folder)) {
        PhotoPermissionsHelper::setPhotosFolder(folder);
        done();
        return;
    }
    _refusedFolder = folder;
    Q_EMIT changed();
}

void PermissionOverlayView::handleLater()
{
    done();
}

void PermissionOverlayView::done()
{
    if (!std::exchange(_isDone, true) && doneBlock)
        doneBlock();
}

void PermissionOverlayView::setAlpha(double alpha)
{
    _alpha = alpha;
    Q_EMIT changed();
}

QString PermissionOverlayView::titleLabel() const
{
    return localized("permission.title");
}

QString PermissionOverlayView::messageLabel() const
{
    return localized(canAsk() ? QStringLiteral("permission.message.make")
                              : QStringLiteral("permission.message.denied"))
        .arg(_refusedFolder.isEmpty() ? PhotoPermissionsHelper::photosFolder() : _refusedFolder);
}

QString PermissionOverlayView::allowButton() const
{
    return localized(canAsk() ? QStringLiteral("permission.button.make")
                              : QStringLiteral("permission.button.choose"));
}

QString PermissionOverlayView::laterButton() const
{
    return localized("permission.button.later");
}

} // namespace pelmira
