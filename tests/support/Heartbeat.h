// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

/// Ticks every millisecond in the event loop of its thread and keeps the longest time between two
/// ticks: how long the loop did not answer.
class Heartbeat {
public:
    Heartbeat() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(1);
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            longest_ = std::max(longest_, sinceLast_.nsecsElapsed());
            sinceLast_.restart();
        });
        restart();
        timer_.start();
    }

    void restart() {
        longest_ = 0;
        sinceLast_.restart();
    }

    double longestMilliseconds() const { return static_cast<double>(longest_) / 1e6; }

private:
    QTimer timer_;
    QElapsedTimer sinceLast_;
    qint64 longest_ = 0;
};
