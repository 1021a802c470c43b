#include "promotion/ZKLCrossPromoteVC.h"

#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"
#include "promotion/StarsImage.h"

#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr QSizeF starsSize(110.0, 20.0); // points
constexpr qsizetype mostApps = 120;      // each gets a button, and the feed may be anybody's
constexpr double starsScale = 3.0;       // for the sharpest screens

} // namespace

std::shared_ptr<ZKLCrossPromoteVC> ZKLCrossPromoteVC::initWithConfig(const QJsonObject& config,
                                                                     Services services)
{
    return std::shared_ptr<ZKLCrossPromoteVC>(new ZKLCrossPromoteVC(config, std::move(services)));
}

ZKLCrossPromoteVC::ZKLCrossPromoteVC(const QJsonObject& config, Services services)
    : _services(std::move(services)),
      _mainEntry(CrossPromoteEntry::fromJson(config[QLatin1String("mainApp")].toObject()))
{
    const QJsonArray apps = config[QLatin1String("apps")].toArray();
    for (qsizetype i = 0; i < std::min(apps.size(), mostApps); ++i)
        _appEntries.push_back(
            std::make_unique<CrossPromoteItem>(CrossPromoteEntry::fromJson(apps[i].toObject())));
}

QUrl ZKLCrossPromoteVC::layoutFile() const
{
    return layoutUrl("CrossPromoteScreen");
}

void ZKLCrossPromoteVC::viewDidLoad()
{
    if (_mainEntry.isShown())
        loadIcon(_mainEntry);
    loadIconsOfPage(0);
    loadIconsOfPage(1);
}

void ZKLCrossPromoteVC::viewDidLayoutSubviews()
{
    _layout = CrossPromoteLayout::forScreen(viewSize().height());
    Q_EMIT layoutChanged();
}

QList<QObject*> ZKLCrossPromoteVC::appEntries() const
{
    QList<QObject*> entries;
    for (const auto& entry : _appEntries)
        entries << entry.get();
    return entries;
}

QImage ZKLCrossPromoteVC::mainAppStars() const
{
    const auto stars = _mainEntry.entry().stars;
    return stars ? starsImageWithSize(starsSize, *stars, starsScale) : QImage();
}

QString ZKLCrossPromoteVC::mainAppStarsText() const
{
    const auto stars = _mainEntry.entry().stars;
    if (!stars)
        return {};
    return localized("moreapps.stars")
        .arg(QLocale().toString(std::clamp(*stars, 0.0, 5.0), 'f', 1));
}

CrossPromoteGrid ZKLCrossPromoteVC::grid(double containerWidth, double scrollHeight) const
{
    return {int(_appEntries.size()), containerWidth, scrollHeight};
}

int ZKLCrossPromoteVC::numPages() const
{
    return grid(0.0, 0.0).numPages();
}

QPointF ZKLCrossPromoteVC::centerForButtonWithIndex(int index, double containerWidth,
                                                    double scrollHeight) const
{
    return grid(containerWidth, scrollHeight).centerForButtonWithIndex(index);
}

void ZKLCrossPromoteVC::scrolled(double x, double containerWidth)
{
    pageControlChangedPage(grid(containerWidth, 0.0).pageAtOffset(x));
}

int ZKLCrossPromoteVC::pageOfEntry(int index)
{
    return index / CrossPromoteGrid::buttonsPerPage;
}

double ZKLCrossPromoteVC::offsetOfPage(int page, double containerWidth) const
{
    return std::clamp(page, 0, numPages() - 1) * containerWidth;
}

void ZKLCrossPromoteVC::pageControlChangedPage(int page)
{
    page = std::clamp(page, 0, numPages() - 1);
    if (page == _currentPage)
        return;
    _currentPage = page;
    loadIconsOfPage(page);
    loadIconsOfPage(page + 1);
    Q_EMIT currentPageChanged();
}

void ZKLCrossPromoteVC::loadIconsOfPage(int page)
{
    const std::size_t first = std::size_t(page) * CrossPromoteGrid::buttonsPerPage;
    const std::size_t end = std::min(first + CrossPromoteGrid::buttonsPerPage, _appEntries.size());
    for (std::size_t i = first; i < end; ++i)
        if (_appEntries[i]->isShown())
            loadIcon(*_appEntries[i]);
}

void ZKLCrossPromoteVC::loadIcon(CrossPromoteItem& item)
{
    if (item.beginLoadingIcon())
        _icons.load(item.entry().icon, [&item](const QImage& icon) { item.setIcon(icon); });
}

void ZKLCrossPromoteVC::closeButtonPressed()
{
    if (dismissBlock)
        dismissBlock();
    Q_EMIT kCrossPromoDismissNotification();
}

void ZKLCrossPromoteVC::mainAppDownloadButtonPressed()
{
    launchStoreProductViewForAppEntry(_mainEntry.entry());
}

void ZKLCrossPromoteVC::appEntryButtonPressed(int tag)
{
    if (tag >= 0 && tag < int(_appEntries.size()))
        launchStoreProductViewForAppEntry(_appEntries[std::size_t(tag)]->entry());
}

void ZKLCrossPromoteVC::launchStoreProductViewForAppEntry(const CrossPromoteEntry& entry)
{
    if (!entry.appleId)
        return;
    const auto failed = [this](const QString& page) {
        logLine("Error in opening %s", qPrintable(page));
        _progressHUD.showErrorWithStatus(localized("moreapps.error"));
    };
    const QUrl page = _services.productPage(*entry.appleId, entry.campaignCode);
    if (!page.isValid()) {
        failed(page.toString());
        return;
    }
    _services.openPage(page, [self = weak_from_this(), failed, page](bool wasPresented) {
        const auto screen = self.lock();
        if (screen && !wasPresented)
            failed(page.toString());
    });
}

} // namespace pelmira
