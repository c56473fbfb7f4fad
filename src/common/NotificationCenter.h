// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMutex>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <functional>

// A process-wide, name-keyed notification bus. Delivery is synchronous, on the
// posting thread, in the order observers subscribed. An observer is tied to a
// context object: when the context is destroyed it is unsubscribed.
class NotificationCenter
{
public:
    struct Notification
    {
        QString name;
        QVariant object;
        QVariantMap userInfo;
    };
    using Handler = std::function<void(const Notification&)>;

    static NotificationCenter& defaultCenter();

    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    void addObserver(const QString& name, QObject* context, Handler handler);
    void removeObserver(QObject* context);
    void removeObserver(QObject* context, const QString& name);

    void post(const QString& name, const QVariant& object = {}, const QVariantMap& userInfo = {});

private:
    struct Observer
    {
        QString name;
        QPointer<QObject> context;
        Handler handler;
        quint64 id;
    };

    QMutex m_mutex; // guards m_observers; never held while a handler runs
    QList<Observer> m_observers;
    quint64 m_nextId = 1;
};
