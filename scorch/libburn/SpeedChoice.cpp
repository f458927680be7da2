// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/SpeedChoice.h"

#include <algorithm>

namespace scorch {
namespace {

constexpr double usableShare = 0.8;
constexpr double bufferedSeconds = 4.5;
constexpr std::int64_t leastBytes = 4'000'000;
constexpr std::int64_t mostBytes = 40'000'000;
/// Of a drive that names no speeds: the fastest there are.
constexpr int assumedSpeed = 9173;

} // namespace

int chooseSpeed(const std::vector<int> &speeds, double sectorsPerSecond) {
    if (speeds.empty()) {
        return 0;
    }
    const double limit =
        usableShare * sectorsPerSecond / sectorsPerSecondAt1x * kilobytesPerSecondAt1x;
    int chosen = *std::min_element(speeds.begin(), speeds.end());
    for (const int speed : speeds) {
        if (speed <= limit) {
            chosen = std::max(chosen, speed);
        }
    }
    return chosen;
}

std::size_t ringBytes(const std::vector<int> &speeds, std::size_t bytesPerSector,
                      std::int64_t contentSectors) {
    const int fastest =
        speeds.empty() ? assumedSpeed : *std::max_element(speeds.begin(), speeds.end());
    const double sectorsPerSecond = fastest / kilobytesPerSecondAt1x * sectorsPerSecondAt1x;
    const auto size = static_cast<std::int64_t>(bytesPerSector);
    const auto wanted = static_cast<std::int64_t>(sectorsPerSecond * bufferedSeconds) * size;
    const std::int64_t sectors = std::clamp(wanted, leastBytes, mostBytes) / size;
    return static_cast<std::size_t>(std::max<std::int64_t>(std::min(sectors, contentSectors), 1) *
                                    size);
}

} // namespace scorch
