// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/NotificationCenter.h"

#include <QObject>
#include <QThread>
#include <gtest/gtest.h>
#include <memory>

TEST(NotificationCenter, DeliversByNameInSubscriptionOrderWithPayload)
{
    NotificationCenter center;
    QObject a, b;
    QStringList seen;
    center.addObserver("Ping", &a, [&](const NotificationCenter::Notification& n) {
        seen << "a:" + n.object.toString() + ":" + n.userInfo.value("k").toString();
    });
    center.addObserver("Ping", &b, [&](const auto&) { seen << "b"; });
    center.addObserver("Other", &b, [&](const auto&) { seen << "other"; });

    center.post("Ping", QStringLiteral("obj"), {{"k", 7}});
    EXPECT_EQ(seen, (QStringList{"a:obj:7", "b"}));
}

TEST(NotificationCenter, ContextDestructionAndRemovalUnsubscribe)
{
    NotificationCenter center;
    int calls = 0;
    auto ctx = std::make_unique<QObject>();
    QObject other;
    center.addObserver("N", ctx.get(), [&](const auto&) { ++calls; });
    center.addObserver("N", &other, [&](const auto&) { ++calls; });
    center.addObserver("M", &other, [&](const auto&) { calls += 100; });

    ctx.reset();
    center.post("N");
    EXPECT_EQ(calls, 1);

    center.removeObserver(&other, "N");
    center.post("N");
    center.post("M");
    EXPECT_EQ(calls, 101);

    center.removeObserver(&other);
    center.post("M");
    EXPECT_EQ(calls, 101);
}

TEST(NotificationCenter, HandlerMayUnsubscribeOthersAndPostAgain)
{
    NotificationCenter center;
    QObject first, second;
    QStringList seen;
    center.addObserver("N", &first, [&](const auto&) {
        seen << "first";
        center.removeObserver(&second);
        center.post("Inner");
    });
    center.addObserver("N", &second, [&](const auto&) { seen << "second"; });
    center.addObserver("Inner", &first, [&](const auto&) { seen << "inner"; });

    center.post("N");
    // The observer removed during delivery is not called afterwards.
    EXPECT_EQ(seen, (QStringList{"first", "inner"}));
}

TEST(NotificationCenter, DeliversOnThePostingThread)
{
    NotificationCenter center;
    QObject ctx;
    QThread* deliveredOn = nullptr;
    center.addObserver("N", &ctx, [&](const auto&) { deliveredOn = QThread::currentThread(); });
    std::unique_ptr<QThread> worker(QThread::create([&] { center.post("N"); }));
    worker->start();
    worker->wait();
    EXPECT_EQ(deliveredOn, worker.get());
}
