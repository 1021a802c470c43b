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
    _untilFinished.invalidate();
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
    if (!isWorkKept()) {
        _untilFinished =
            Timer::scheduled(secondsBetweenLooks, [this, photos] { leaveAndOpen(photos); });
        return;
    }
    _screens.popToRootViewController();
    openPhotos(photos);
}

// A mask that is to be kept may have to wait for a fill that runs.
bool OpenRequests::isWorkKept()
{
    if (hasUnfinishedWork())
        return false;
    keepWork();
    return !hasUnfinishedWork();
}

} // namespace pelmira
