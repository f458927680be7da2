// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace recorder {

/// What a drive is, from the file `drive` of its folder. All statements may be left out:
///
///     vendor EXAMPLE              up to 8 characters
///     product CD-RW 52X           up to 16
///     revision 1.00               up to 4
///     serial 000001
///     writes yes                  no: a drive that only reads
///     speeds 52 32 16 8 4         writing, in multiples of 1x, fastest first
///     buffer 2048                 KiB
struct DriveProfile {
    std::string vendor = "EXAMPLE";
    std::string product = "CD-RW RECORDER";
    std::string revision = "1.00";
    std::string serial = "0000000001";
    bool canWrite = true;
    std::vector<int> speeds = {52, 32, 16, 8, 4};
    int bufferKib = 2048;

    bool operator==(const DriveProfile &) const = default;
};

/// Nothing for text that is wrong; `error` then names the line.
std::optional<DriveProfile> parseDriveProfile(std::string_view text, std::string &error);

/// Kilobytes of 1000 bytes a second, as commands count speeds: 1x is 176.
int kilobytesPerSecond(int multiple);

} // namespace recorder
