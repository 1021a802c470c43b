#include "Fuzz.h"
#include "platform/net/BoundedJson.h"
#include "promotion/ZKLCrossPromoteVC.h"

// The list of other applications, and the screen that shows it, as far as no icon is fetched.
void pelmira::fuzz(const QByteArray& input)
{
    const auto config = jsonObjectFromData(input, 64);
    if (!config)
        return;
    const auto screen = ZKLCrossPromoteVC::initWithConfig(
        *config, {[](qint64, const QString&) { return QUrl(); }, [](const QUrl&, auto) {}});
    screen->viewDidLayoutSubviews();
    const int entries = static_cast<int>(screen->appEntries().size());
    (void)screen->mainAppStars();
    (void)screen->mainAppStarsText();
    for (int i = -1; i <= entries; ++i) {
        (void)screen->centerForButtonWithIndex(i, 320, 218);
        screen->appEntryButtonPressed(i);
    }
    screen->mainAppDownloadButtonPressed();
    must(screen->numPages() >= 1 && screen->currentPage() == 0);
}
