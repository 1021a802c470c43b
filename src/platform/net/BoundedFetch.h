#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <optional>

namespace pelmira {

/// What a fetch may take. A reply beyond that is refused, and no more of it is read.
struct FetchLimits {
    qint64 bytes = 0;
    int milliseconds = 0; ///< from the request to the last byte, however steadily they drip
};

/// Reads what stands at one address of the net (http or https) whole, once, without cookies. A
/// redirection may lead to another host, but not to another scheme. Main thread only.
class BoundedFetch final : public QObject {
    Q_OBJECT

public:
    /// The bytes, or one line for the log.
    using Completion = std::function<void(std::optional<QByteArray> bytes, const QString& problem)>;

    /// The completion is called once, from the event loop; it may destroy this. Destroying it
    /// earlier ends the fetch without a call. Not owned: the network.
    BoundedFetch(QNetworkAccessManager& network, const QUrl& url, const FetchLimits& limits,
                 Completion completion);
    ~BoundedFetch() override;

    static bool canFetch(const QUrl& url);

private:
    void start(QNetworkAccessManager& network, const QUrl& url);
    void redirected(const QUrl& to);
    void checkAnnouncedSize();
    /// False, and the fetch is over, if there is more than allowed.
    bool takeWhatHasCome();
    void finished();
    void finish(std::optional<QByteArray> bytes, const QString& problem);
    void stop();

    const FetchLimits _limits;
    const QString _scheme;
    Completion _completion;
    QPointer<QNetworkReply> _reply;
    QByteArray _bytes;
    int _redirections = 0;
    QTimer _deadline;
};

} // namespace pelmira
