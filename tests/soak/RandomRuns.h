// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/soak/ToolSession.h"

#include <cstdint>
#include <random>

/// Burns in a row at which something random happens: nothing, a cancel, a fault, another disc.
class RandomRuns {
public:
    RandomRuns(SoakScene &scene, ToolSession &session, std::uint32_t seed)
        : scene_(scene), session_(session), random_(seed) {}

    /// Prints a line for each; the number of those that are not as they have to be.
    int run(int count);

private:
    bool changeDiscs();
    bool runOne(int number);

    SoakScene &scene_;
    ToolSession &session_;
    std::mt19937 random_;
};
