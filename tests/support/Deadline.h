// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <thread>

/// How long a test waits for what other programs do before it fails; a busy machine may take long.
inline constexpr std::chrono::seconds waitLimit{20};

/// Looks until it is so. Other programs say nothing when their state changes, so it looks often.
/// False after `limit`.
template <typename Condition>
bool eventually(const Condition &isSo, std::chrono::milliseconds limit = waitLimit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!isSo()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
    return true;
}
