// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchHooks.h"

#include <string_view>

namespace scorch {

/// Hands a line to the program's log, see ScorchHooks::log. Any thread.
inline void logLine(std::string_view line) {
    if (const auto &log = ScorchHooks::shared().log) {
        log(line);
    }
}

} // namespace scorch
