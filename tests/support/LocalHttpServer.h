// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QTcpServer>

// A real HTTP/1.1 server on 127.0.0.1 for the update check: it answers every
// request with the status and body it was given (status 0: never answers) and
// records what it received.
class LocalHttpServer : public QObject
{
    Q_OBJECT
public:
    struct Request
    {
        QByteArray method;
        QByteArray target;             // path and query as sent
        QList<QByteArray> headerLines; // lower-cased "name: value"
    };

    LocalHttpServer();
    bool listen();
    quint16 port() const { return m_server.serverPort(); }
    QString baseUrl() const;
    void close() { m_server.close(); }

    void answer(int status, const QByteArray& body);
    const QList<Request>& requests() const { return m_requests; }

private:
    void serve(QTcpSocket* socket);

    QTcpServer m_server;
    int m_status = 200;
    QByteArray m_body;
    QList<Request> m_requests;
};
