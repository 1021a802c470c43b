#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

namespace pelmira::test {

/// A server of the test's own, which answers every request with the same bytes, in the manner that
/// it is told.
class HttpServer : private QTcpServer {
public:
    enum class Manner {
        AtOnce,
        ByteByByte,
        Endlessly, ///< after the answer more of anything, until nobody reads any more
        Never,
    };

    HttpServer()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("The test's server can't listen");
        connect(this, &QTcpServer::newConnection, this, [this] { serve(nextPendingConnection()); });
    }

    static QByteArray response(const QByteArray& status, const QByteArray& body)
    {
        return "HTTP/1.1 " + status + "\r\nConnection: close\r\n\r\n" + body;
    }

    QUrl url(const char* path = "/") const
    {
        return QUrl(
            QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(QLatin1String(path)));
    }
    int connections() const { return _connections; }
    using QTcpServer::close;

    QByteArray answer;
    Manner manner = Manner::AtOnce;
    QByteArray request; ///< the last one
    int requests = 0;

private:
    void serve(QTcpSocket* socket)
    {
        ++_connections;
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            --_connections;
            socket->deleteLater();
        });
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            request = socket->readAll();
            ++requests;
            respond(socket);
        });
    }

    void respond(QTcpSocket* socket)
    {
        if (manner == Manner::Never)
            return;
        if (manner == Manner::ByteByByte)
            return drip(socket, answer);
        socket->write(answer);
        if (manner == Manner::AtOnce)
            return socket->disconnectFromHost();
        const auto more = [socket] {
            if (socket->bytesToWrite() < (1 << 16))
                socket->write("1000\r\n" + QByteArray(0x1000, 'x') + "\r\n");
        };
        connect(socket, &QTcpSocket::bytesWritten, socket, more);
        more();
    }

    void drip(QTcpSocket* socket, const QByteArray& rest)
    {
        if (rest.isEmpty())
            return socket->disconnectFromHost();
        socket->write(rest.left(1));
        socket->flush();
        QTimer::singleShot(1, socket, [=, this] { drip(socket, rest.mid(1)); });
    }

    int _connections = 0;
};

} // namespace pelmira::test
