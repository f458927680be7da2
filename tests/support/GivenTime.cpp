// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/GivenTime.h"

#include <algorithm>

using namespace std::chrono_literals;

GivenTime::GivenTime() : thread_([this] { count(); }) {}

GivenTime::~GivenTime() {
    ended_ = true;
    thread_.join();
}

std::chrono::milliseconds GivenTime::elapsed() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(counted_.load() - begin_.load());
}

std::chrono::milliseconds GivenTime::restart() {
    const std::chrono::nanoseconds now = counted_;
    return std::chrono::duration_cast<std::chrono::milliseconds>(now - begin_.exchange(now));
}

void GivenTime::count() {
    constexpr std::chrono::nanoseconds mostAtOnce = 4ms;
    auto last = std::chrono::steady_clock::now();
    while (!ended_) {
        std::this_thread::sleep_for(1ms);
        const auto now = std::chrono::steady_clock::now();
        counted_ = counted_.load() + std::min<std::chrono::nanoseconds>(now - last, mostAtOnce);
        last = now;
    }
}
