#include "background_editor/screen/PanelContainer.h"

namespace pelmira {

void PanelContainer::setCurrentPanel(QObject* panel)
{
    if (panel == _currentPanel)
        return;
    _currentPanel = panel;
    Q_EMIT currentPanelChanged();
    if (!panel || !setTabsEnabledBlock)
        return;
    setTabsEnabledBlock(false);
    _cameUp = Timer::scheduled(slideSeconds, [this] { setTabsEnabledBlock(true); });
}

} // namespace pelmira
