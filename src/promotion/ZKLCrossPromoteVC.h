#pragma once

#include "controls/ZKLProgressHUD.h"
#include "platform/screen/Screen.h"
#include "promotion/CrossPromoteGrid.h"
#include "promotion/CrossPromoteItem.h"
#include "promotion/IconLoader.h"

#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QPointF>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

namespace pelmira {

/// The maker's other applications: one above, with its rating, and pages of further ones below,
/// each leading to its page in the store. Icons are fetched for the page that is seen and the next.
class ZKLCrossPromoteVC final : public Screen,
                                public std::enable_shared_from_this<ZKLCrossPromoteVC> {
    Q_OBJECT
    Q_PROPERTY(pelmira::CrossPromoteItem* mainEntry READ mainEntry CONSTANT)
    Q_PROPERTY(QList<QObject*> appEntries READ appEntries CONSTANT)
    Q_PROPERTY(QImage mainAppStars READ mainAppStars CONSTANT)
    Q_PROPERTY(QString mainAppStarsText READ mainAppStarsText CONSTANT)
    Q_PROPERTY(double containerHeight READ containerHeight NOTIFY layoutChanged)
    Q_PROPERTY(double mainContentHeight READ mainContentHeight NOTIFY layoutChanged)
    Q_PROPERTY(bool hasBackgroundView READ hasBackgroundView NOTIFY layoutChanged)
    Q_PROPERTY(int numPages READ numPages CONSTANT)
    Q_PROPERTY(int currentPage READ currentPage NOTIFY currentPageChanged)
    Q_PROPERTY(pelmira::ZKLProgressHUD* progressHUD READ progressHUD CONSTANT)

public:
    struct Services {
        /// Null without a store.
        std::function<QUrl(qint64 appleId, const QString& campaignCode)> productPage;
        /// The completion is told whether the user was shown anything.
        std::function<void(const QUrl& page, std::function<void(bool)>)> openPage;
    };

    static std::shared_ptr<ZKLCrossPromoteVC> initWithConfig(const QJsonObject& config,
                                                             Services services);

    /// Takes this screen away.
    std::function<void()> dismissBlock;

    Q_INVOKABLE void closeButtonPressed();
    Q_INVOKABLE void mainAppDownloadButtonPressed();
    Q_INVOKABLE void appEntryButtonPressed(int tag);
    Q_INVOKABLE void pageControlChangedPage(int page);
    /// The page of an entry, and a page's offset in points; beyond the last one counts as the last.
    Q_INVOKABLE static int pageOfEntry(int index);
    Q_INVOKABLE double offsetOfPage(int page, double containerWidth) const;
    /// The grid was scrolled by the offset, in points, with pages as wide as the container.
    Q_INVOKABLE void scrolled(double x, double containerWidth);
    /// In points, within the grid's content.
    Q_INVOKABLE QPointF centerForButtonWithIndex(int index, double containerWidth,
                                                 double scrollHeight) const;

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void viewDidLayoutSubviews() override;
    void pressedBesideSheet() override { closeButtonPressed(); }

    CrossPromoteItem* mainEntry() { return &_mainEntry; }
    QList<QObject*> appEntries() const;
    /// Null for an entry without a rating.
    QImage mainAppStars() const;
    QString mainAppStarsText() const;
    double containerHeight() const { return _layout.containerHeight; }
    double mainContentHeight() const { return _layout.mainContentHeight; }
    bool hasBackgroundView() const { return _layout.hasBackgroundView; }
    int numPages() const;
    int currentPage() const { return _currentPage; }
    ZKLProgressHUD* progressHUD() { return &_progressHUD; }

Q_SIGNALS:
    void layoutChanged();
    void currentPageChanged();
    void kCrossPromoDismissNotification();

private:
    ZKLCrossPromoteVC(const QJsonObject& config, Services services);

    CrossPromoteGrid grid(double containerWidth, double scrollHeight) const;
    void launchStoreProductViewForAppEntry(const CrossPromoteEntry& entry);
    void loadIcon(CrossPromoteItem& item);
    void loadIconsOfPage(int page);

    const Services _services;
    CrossPromoteItem _mainEntry;
    std::vector<std::unique_ptr<CrossPromoteItem>> _appEntries;
    CrossPromoteLayout _layout;
    int _currentPage = 0;
    ZKLProgressHUD _progressHUD;
    IconLoader _icons; // goes first: it calls into the entries
};

} // namespace pelmira
