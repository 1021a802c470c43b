#include "platform/net/BoundedJson.h"
#include "promotion/ZKLCrossPromoteVC.h"

#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QGuiApplication application(*argc, *argv); // stars are drawn
    return 0;
}

// The list of other applications, and the screen that shows it, as far as no icon is fetched.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const auto config = pelmira::jsonObjectFromData(
        QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)), 64);
    if (!config)
        return 0;
    const auto screen = pelmira::ZKLCrossPromoteVC::initWithConfig(
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
    if (screen->numPages() < 1 || screen->currentPage() != 0)
        std::abort();
    return 0;
}
