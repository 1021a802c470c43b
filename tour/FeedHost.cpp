#include "FeedHost.h"

#include "SamplePhoto.h"

#include <QBuffer>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>

namespace pelmira {
namespace {

constexpr int applications = 14;
constexpr int withoutIcon = 4;

QByteArray icon(int number)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    samplePhoto(number).copy(200, 0, 1200, 1200).scaled(240, 240).save(&buffer, "PNG");
    return bytes;
}

} // namespace

FeedHost::FeedHost()
{
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
        QTcpSocket* socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            socket->write(answerTo(socket->readAll()));
            socket->disconnectFromHost();
        });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}

QUrl FeedHost::url(const QString& file) const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1/%2").arg(serverPort()).arg(file));
}

QByteArray FeedHost::feed() const
{
    const auto application = [this](int number, const QString& name) {
        return QJsonObject{
            {QStringLiteral("name"), name},
            {QStringLiteral("icon"), url(QStringLiteral("%1.png").arg(number)).toString()},
            {QStringLiteral("appleId"), 1000 + number},
            {QStringLiteral("stars"), 4.5},
        };
    };
    QJsonArray others;
    for (int number = 1; number <= applications; ++number)
        others << application(number, number == 2 ? QStringLiteral("Pear of a Longer Name")
                                                  : QStringLiteral("Pear %1").arg(number));
    const QJsonObject list{{QStringLiteral("mainApp"), application(0, QStringLiteral("Pear Tree"))},
                           {QStringLiteral("apps"), others}};
    return QJsonDocument(list).toJson();
}

QByteArray FeedHost::answerTo(const QByteArray& request) const
{
    const QByteArray file = request.split(' ').value(1).mid(1);
    const int number = file.split('.').first().toInt();
    if (number == withoutIcon)
        return "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
    return "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" +
           (file == "feed.json" ? feed() : icon(number));
}

} // namespace pelmira
