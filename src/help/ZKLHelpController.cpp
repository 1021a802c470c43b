#include "help/ZKLHelpController.h"

#include "controls/ZKLConfigManager.h"
#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <optional>

namespace pelmira {
namespace {

constexpr FetchLimits pageLimits{512 * 1024, 15000};

// A space in their place: what stood around one must not make another.
QString withoutPictures(QString page)
{
    static const QRegularExpression picture(
        QStringLiteral("<img\\b[^>]*>?|\\bbackground\\s*=|\\burl\\s*\\("),
        QRegularExpression::CaseInsensitiveOption);
    return page.replace(picture, QStringLiteral(" "));
}

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
                webViewDidFinishLoad(withoutPictures(QString::fromUtf8(*bytes)));
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
    if (!link.startsWith(u'#'))
        return -1;
    const QString name = link.mid(1);
    QTextDocument document; // the same text as the one that is shown
    document.setHtml(_page);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().anchorNames().contains(name))
                return part.fragment().position();
    return -1;
}

} // namespace pelmira
