// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/NotificationCenter.h"

#include <QMutexLocker>
#include <QObject>

NotificationCenter& NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const QString& name, QObject* context, Handler handler)
{
    Q_ASSERT(context);
    quint64 id = 0;
    {
        QMutexLocker lock(&m_mutex);
        id = m_nextId++;
        m_observers.append(Observer{name, context, std::move(handler), id});
    }
    QObject::connect(context, &QObject::destroyed, context, [this, id] {
        QMutexLocker lock(&m_mutex);
        m_observers.removeIf([id](const Observer& o) { return o.id == id; });
    });
}

void NotificationCenter::removeObserver(QObject* context)
{
    QMutexLocker lock(&m_mutex);
    m_observers.removeIf([context](const Observer& o) { return o.context == context; });
}

void NotificationCenter::removeObserver(QObject* context, const QString& name)
{
    QMutexLocker lock(&m_mutex);
    m_observers.removeIf([&](const Observer& o) { return o.context == context && o.name == name; });
}

void NotificationCenter::post(const QString& name, const QVariant& object,
                              const QVariantMap& userInfo)
{
    // Copy the matching handlers first so that a handler may subscribe,
    // unsubscribe or post again without deadlocking.
    QList<std::pair<quint64, Handler>> targets;
    {
        QMutexLocker lock(&m_mutex);
        for (const Observer& o : m_observers) {
            if (o.name == name && o.context)
                targets.append({o.id, o.handler});
        }
    }
    const Notification note{name, object, userInfo};
    for (const auto& [id, handler] : targets) {
        bool stillSubscribed = false;
        {
            QMutexLocker lock(&m_mutex);
            for (const Observer& o : m_observers) {
                if (o.id == id && o.context) {
                    stillSubscribed = true;
                    break;
                }
            }
        }
        if (stillSubscribed)
            handler(note);
    }
}
