// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <random>
#include <string>

/// From 0 to `most`.
inline int pick(std::mt19937 &random, int most) {
    return std::uniform_int_distribution(0, most)(random);
}

/// A statement of the recorder's control file, for a disc with about 1200 recorded blocks.
std::string randomFault(std::mt19937 &random);
