// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

/// Handles events until `isDone` or ten seconds have passed. Whether it is done.
template <typename Condition>
bool eventually(const Condition &isDone) {
    constexpr qint64 limit = 10'000;
    QElapsedTimer clock;
    clock.start();
    while (!isDone() && clock.elapsed() < limit) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return isDone();
}
