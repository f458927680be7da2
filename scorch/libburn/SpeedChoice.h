// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace scorch {

/// Sectors a second at 1x.
inline constexpr double sectorsPerSecondAt1x = 75.0;
/// kB/s (1000 bytes) of 1x, as drives count speeds, whatever the sectors hold.
inline constexpr double kilobytesPerSecondAt1x = 176.4;

/// The fastest of `speeds` (kB/s, any order) that leaves a fifth of what the sources deliver in
/// hand, so that the drive need not stop and start for want of data; the slowest where none does.
/// 0, the drive's own choice, where it names no speeds. `sectorsPerSecond` was measured.
int chooseSpeed(const std::vector<int> &speeds, double sectorsPerSecond);

/// Bytes for a ring that lasts four seconds and more at the fastest of `speeds`, in whole sectors:
/// 4 to 40 MB, and not more than the content.
std::size_t ringBytes(const std::vector<int> &speeds, std::size_t bytesPerSector,
                      std::int64_t contentSectors);

} // namespace scorch
