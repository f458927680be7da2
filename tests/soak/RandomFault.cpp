// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/soak/RandomFault.h"

std::string randomFault(std::mt19937 &random) {
    const std::string written = std::to_string(pick(random, 1300) - 150);
    const std::string read = std::to_string(pick(random, 1100));
    switch (pick(random, 8)) {
    case 0:
        return "write-error " + written;
    case 1:
        return "loss-of-streaming " + written;
    case 2:
        return "power-calibration";
    case 3:
        return "refuse-cd-text";
    case 4:
        return "silent 100";
    case 5:
        return "vanished";
    case 6:
        return "tray open #1";
    case 7:
        return "read-error " + read;
    default:
        return "flip " + read + " 5";
    }
}
