// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/LocalHttpServer.h"

#include <QHostAddress>
#include <QTcpSocket>

LocalHttpServer::LocalHttpServer()
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            socket->setParent(this);
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

bool LocalHttpServer::listen()
{
    return m_server.listen(QHostAddress::LocalHost, 0);
}

QString LocalHttpServer::baseUrl() const
{
    return QStringLiteral("http://127.0.0.1:%1/").arg(port());
}

void LocalHttpServer::answer(int status, const QByteArray& body)
{
    m_status = status;
    m_body = body;
}

void LocalHttpServer::serve(QTcpSocket* socket)
{
    QByteArray buffer = socket->property("buffer").toByteArray() + socket->readAll();
    socket->setProperty("buffer", buffer);
    const qsizetype end = buffer.indexOf("\r\n\r\n");
    if (end < 0 || socket->property("answered").toBool())
        return;
    socket->setProperty("answered", true);

    const QList<QByteArray> lines = buffer.left(end).split('\n');
    Request request;
    const QList<QByteArray> first = lines.value(0).trimmed().split(' ');
    request.method = first.value(0);
    request.target = first.value(1);
    for (qsizetype i = 1; i < lines.size(); ++i)
        request.headerLines << lines[i].trimmed().toLower();
    m_requests << request;
    if (m_status == 0)
        return; // a service that takes the request and never answers

    const QByteArray reason = m_status == 200 ? "OK" : "Error";
    socket->write("HTTP/1.1 " + QByteArray::number(m_status) + ' ' + reason + "\r\n" +
                  "Content-Type: application/json\r\n" + "Content-Length: " +
                  QByteArray::number(m_body.size()) + "\r\n" + "Connection: close\r\n\r\n");
    socket->write(m_body);
    socket->disconnectFromHost();
}
