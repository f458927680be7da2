// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/EventLoop.h"

#include "CDBurnerPlugin/MainQueue.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QTest>
#include <QWidget>

#include <chrono>
#include <memory>

bool runUntil(const std::function<bool()> &condition) {
    using namespace std::chrono_literals;
    const QDeadlineTimer deadline(10s);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
}

void drainMainQueue() {
    const auto isDone = std::make_shared<bool>(false);
    MainQueue::async([isDone] { *isDone = true; });
    EXPECT_TRUE(runUntil([&isDone] { return *isDone; }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void showActive(QWidget &window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}
