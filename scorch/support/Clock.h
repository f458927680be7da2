// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <functional>

namespace scorch {

/// A moment on a clock that never goes back.
using Moment = std::chrono::steady_clock::time_point;

/// Where the time comes from: the system's clock, or one that a test moves. Any thread.
using Clock = std::function<Moment()>;

inline Clock systemClock() {
    return [] {
        return std::chrono::steady_clock::now();
    };
}

} // namespace scorch
