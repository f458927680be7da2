// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <ctime>

/// The processor time that the calling thread has used so far. For tests that say how long
/// something that only computes may take: what others do on the machine is not in it.
inline std::chrono::nanoseconds processorTimeOfThread() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}
