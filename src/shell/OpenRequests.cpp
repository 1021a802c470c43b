#include "shell/OpenRequests.h"

#include "platform/text/LocalizedStrings.h"

#include <QFileInfo>

namespace pelmira {
namespace {

constexpr double secondsBetweenLooks = 0.1;

} // namespace

void OpenRequests::open(const QStringList& photos)
{
    comeToFront();
    if (photos.isEmpty())
        return;
    if (!hasCutOut()) {
        leaveAndOpen(photos);
        return;
    }
    const QString name = QFileInfo(photos.first()).fileName();
    _alert.show({localized("openrequest.title").arg(name), localized("startover.message"),
                 localized("generic.no"), localized("generic.yes")},
                [this, photos] { leaveAndOpen(photos); });
}

void OpenRequests::leaveAndOpen(const QStringList& photos)
{
    if (hasUnfinishedWork()) {
        _untilFinished =
            Timer::scheduled(secondsBetweenLooks, [this, photos] { leaveAndOpen(photos); });
        return;
    }
    keepWork();
    _screens.popToRootViewController();
    openPhotos(photos);
}

} // namespace pelmira
