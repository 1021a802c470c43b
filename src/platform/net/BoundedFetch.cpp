#include "platform/net/BoundedFetch.h"

#include <QNetworkRequest>

#include <utility>

namespace pelmira {
namespace {

constexpr int mostRedirections = 3;
constexpr qint64 mostBytesAhead = 64 * 1024; // read from the socket before they are taken

const QString tooLarge = QStringLiteral("too large");

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // Asking for it turns off unpacking: a few packed bytes could be any number unpacked.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

} // namespace

BoundedFetch::BoundedFetch(QNetworkAccessManager& network, const QUrl& url,
                           const FetchLimits& limits, Completion completion)
    : _limits(limits), _scheme(url.scheme()), _completion(std::move(completion))
{
    if (canFetch(url))
        start(network, url);
    else
        QMetaObject::invokeMethod(
            this, [this] { finish({}, QStringLiteral("not an address of the net")); },
            Qt::QueuedConnection);
}

BoundedFetch::~BoundedFetch()
{
    _completion = nullptr;
    stop();
}

bool BoundedFetch::canFetch(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == u"http" || url.scheme() == u"https");
}

void BoundedFetch::start(QNetworkAccessManager& network, const QUrl& url)
{
    _deadline.setSingleShot(true);
    connect(&_deadline, &QTimer::timeout, this,
            [this] { finish({}, QStringLiteral("no answer in time")); });
    _deadline.start(_limits.milliseconds);

    _reply = network.get(requestFor(url));
    _reply->setReadBufferSize(mostBytesAhead);
    connect(_reply, &QNetworkReply::redirected, this, &BoundedFetch::redirected);
    connect(_reply, &QNetworkReply::metaDataChanged, this, &BoundedFetch::checkAnnouncedSize);
    connect(_reply, &QNetworkReply::readyRead, this, &BoundedFetch::takeWhatHasCome);
    connect(_reply, &QNetworkReply::finished, this, &BoundedFetch::finished);
}

void BoundedFetch::redirected(const QUrl& to)
{
    if (to.scheme() != _scheme)
        finish({}, QStringLiteral("redirected to another scheme"));
    else if (++_redirections > mostRedirections)
        finish({}, QStringLiteral("redirected too often"));
    else
        Q_EMIT _reply->redirectAllowed();
}

void BoundedFetch::checkAnnouncedSize()
{
    if (_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > _limits.bytes)
        finish({}, tooLarge);
}

bool BoundedFetch::takeWhatHasCome()
{
    _bytes += _reply->readAll();
    if (_bytes.size() <= _limits.bytes)
        return true;
    finish({}, tooLarge);
    return false;
}

void BoundedFetch::finished()
{
    const int status = _reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (_reply->error() != QNetworkReply::NoError)
        finish({}, _reply->errorString());
    else if (status / 100 != 2) // a redirection that leads nowhere is no error to the library
        finish({}, QStringLiteral("status %1").arg(status));
    else if (takeWhatHasCome())
        finish(std::move(_bytes), {});
}

void BoundedFetch::finish(std::optional<QByteArray> bytes, const QString& problem)
{
    stop();
    if (const Completion completion = std::exchange(_completion, nullptr))
        completion(std::move(bytes), problem);
}

void BoundedFetch::stop()
{
    _deadline.stop();
    if (!_reply)
        return;
    QNetworkReply* reply = std::exchange(_reply, nullptr);
    reply->disconnect(this);
    reply->deleteLater(); // which also ends what it is doing
}

} // namespace pelmira
