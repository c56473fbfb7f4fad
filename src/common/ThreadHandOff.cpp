// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ThreadHandOff.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace ThreadHandOff {
namespace {

const QEvent::Type kHandOffEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

class HandOffEvent : public QEvent
{
public:
    HandOffEvent(QObject* context, std::function<void()> function)
        : QEvent(kHandOffEvent), m_context(context), m_function(std::move(function))
    {
    }

    void deliver()
    {
        if (m_context && m_function)
            m_function();
    }

private:
    QPointer<QObject> m_context;
    std::function<void()> m_function;
};

// Receives the hand-over events on the main thread.
class Dispatcher : public QObject
{
public:
    bool event(QEvent* event) override
    {
        acquired(); // before the event itself is read
        if (event->type() != kHandOffEvent)
            return QObject::event(event);
        static_cast<HandOffEvent*>(event)->deliver();
        return true;
    }
};

Dispatcher* dispatcher()
{
    // Made as the application starts (below), on its thread; made on first
    // use only where there is no application. It lives as long as the process.
    static Dispatcher* const instance = [] {
        auto* made = new Dispatcher;
        if (QCoreApplication* app = QCoreApplication::instance())
            made->moveToThread(app->thread());
        return made;
    }();
    return instance;
}

} // namespace

} // namespace ThreadHandOff

namespace {
// On the main thread before any worker can post: a dispatcher a worker made
// would reach the main thread's event filters through Qt's queue alone.
void makeHandOffDispatcher()
{
    ThreadHandOff::dispatcher();
}
} // namespace
Q_COREAPP_STARTUP_FUNCTION(makeHandOffDispatcher)

void postHandedOver(QObject* context, std::function<void()> function)
{
    if (!context)
        return;
    auto* event = new ThreadHandOff::HandOffEvent(context, std::move(function));
    ThreadHandOff::released();
    QCoreApplication::postEvent(ThreadHandOff::dispatcher(), event);
}
