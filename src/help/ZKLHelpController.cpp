#include "help/ZKLHelpController.h"

#include "controls/ZKLConfigManager.h"
#include "platform/base/Log.h"

#include <QNetworkReply>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

namespace pelmira {
namespace {

constexpr qint64 mostBytes = 512 * 1024;

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

bool isAllowed(const QUrl& url)
{
    return isShipped(url) || url.scheme() == u"https" || url.scheme() == u"http";
}

} // namespace

ZKLHelpController::ZKLHelpController(const ZKLConfigManager& config, double mostSeconds)
    : _config(config), _mostSeconds(mostSeconds)
{
}

ZKLHelpController::~ZKLHelpController()
{
    if (_reply)
        _reply->disconnect(this);
}

QUrl ZKLHelpController::layoutFile() const
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/HelpScreen.qml"));
}

void ZKLHelpController::viewDidLoad()
{
    const QUrl url = _config.helpUrl();
    if (!isAllowed(url)) {
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
    QNetworkRequest request(url);
    request.setMaximumRedirectsAllowed(3);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    _reply = _network.get(request);
    _patience = Timer::scheduled(_mostSeconds, [this] {
        if (_reply)
            _reply->abort();
    });
    connect(_reply, &QNetworkReply::readyRead, this, [this] {
        if (_reply->bytesAvailable() > mostBytes)
            _reply->abort();
    });
    connect(_reply, &QNetworkReply::finished, this, [this] {
        _patience.invalidate();
        _reply->deleteLater();
        const bool isTooMuch = _reply->bytesAvailable() > mostBytes;
        if (isTooMuch || _reply->error() != QNetworkReply::NoError) {
            webViewDidFailLoadWithError(isTooMuch ? QStringLiteral("the page is too large")
                                                  : _reply->errorString());
            return;
        }
        _page = QString::fromUtf8(_reply->readAll());
        if (!isShipped(_reply->url()))
            _page = withoutPictures(_page);
        webViewDidFinishLoad();
    });
}

void ZKLHelpController::webViewDidFinishLoad()
{
    _isLoading = false;
    _title = QStringLiteral("Help");
    Q_EMIT changed();
}

void ZKLHelpController::webViewDidFailLoadWithError(const QString& error)
{
    logLine("Help: %s", qPrintable(error));
    webViewDidFinishLoad();
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
