#include "help/ZKLHelpController.h"

#include "controls/ZKLConfigManager.h"
#include "help/HelpPage.h"
#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"

#include <QFile>

#include <optional>

namespace pelmira {
namespace {

constexpr FetchLimits pageLimits{512 * 1024, 15000};

bool isShipped(const QUrl& url)
{
    return url.scheme() == u"qrc";
}

QString shippedPage(const QUrl& url)
{
    QFile file(u':' + url.path());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

ZKLHelpController::ZKLHelpController(const ZKLConfigManager& config) : _config(config)
{
}

QUrl ZKLHelpController::layoutFile() const
{
    return layoutUrl("HelpScreen");
}

void ZKLHelpController::viewDidLoad()
{
    const QUrl url = _config.helpUrl();
    if (!isShipped(url) && !BoundedFetch::canFetch(url)) {
        showErrorAlert();
        return;
    }
    _isLoading = true;
    _title = QStringLiteral("Loading...");
    Q_EMIT changed();
    loadRequest(url);
}

void ZKLHelpController::loadRequest(const QUrl& url)
{
    if (isShipped(url)) {
        webViewDidFinishLoad(shippedPage(url));
        return;
    }
    _network = std::make_unique<QNetworkAccessManager>();
    _fetch = std::make_unique<BoundedFetch>(
        *_network, url, pageLimits,
        [this](const std::optional<QByteArray>& bytes, const QString& problem) {
            if (bytes)
                webViewDidFinishLoad(helpPageFromNet(*bytes));
            else
                webViewDidFailLoadWithError(problem);
        });
}

void ZKLHelpController::webViewDidFinishLoad(const QString& page)
{
    _page = page;
    _isLoading = false;
    _title = QStringLiteral("Help");
    Q_EMIT changed();
}

void ZKLHelpController::webViewDidFailLoadWithError(const QString& error)
{
    logLine("Help: %s", qPrintable(error));
    webViewDidFinishLoad({});
    showErrorAlert();
}

void ZKLHelpController::showErrorAlert()
{
    _alert.show({QStringLiteral("Sorry something wrong"),
                 QStringLiteral("Help is unavailable right now. Please note you need to be online "
                                "for help to work."),
                 QStringLiteral("Done"), QStringList()},
                [](const QString&) {});
}

void ZKLHelpController::doneButtonPressed()
{
    if (dismissBlock)
        dismissBlock();
}

int ZKLHelpController::positionOfLink(const QString& link) const
{
    return positionOfLinkInPage(link, _page);
}

} // namespace pelmira
