#include "export/SaveViewController.h"

#include "settings/ZKLAnalyticsHelper.h"

#include <utility>

// What the save screen notes of an answer, and when it may be asked something after it.

namespace pelmira {

void SaveViewController::viewDidLayoutSubviews()
{
    _rateMoreContainerView.layoutForHeight(viewSize().height());
}

// By what was wanted: a file that can't be written as HEIF is one all the same.
void SaveViewController::saveDialogAnswered(bool transparent)
{
    const QString transparentFormat =
        _persistence.saveTransparentAsHEIF() ? QStringLiteral("heif") : QStringLiteral("png");
    ZKLAnalyticsHelper::logSelectContentWithType(ZKLAnalyticsHelper::contentTypeSaveFormat(),
                                                 transparent ? transparentFormat
                                                             : QStringLiteral("jpg"));
    _wasAnswered = true;
}

// In the next turn: the card may have gone for a dialog that is about to open.
void SaveViewController::callAnsweredBlockAtRest()
{
    if (!_wasAnswered || _progressHUD.isVisible())
        return;
    mainQueue().async([self = weak_from_this()] {
        const auto screen = self.lock();
        if (!screen || screen->_progressHUD.isVisible() || screen->alert()->isOpen() ||
            screen->saveProblemAlert()->isOpen() || !screen->saveJPGButton()->isEnabled())
            return;
        if (std::exchange(screen->_wasAnswered, false) && screen->answeredBlock)
            screen->answeredBlock();
    });
}

} // namespace pelmira
