#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QUrl>

namespace pelmira {

/// A host on this machine that has a list of other applications, and their icons: one of them is
/// missing.
class FeedHost : private QTcpServer {
public:
    FeedHost();

    QUrl feedUrl() const { return url(QStringLiteral("feed.json")); }

private:
    QUrl url(const QString& file) const;
    QByteArray feed() const;
    QByteArray answerTo(const QByteArray& request) const;
};

} // namespace pelmira
