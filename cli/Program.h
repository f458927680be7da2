// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/ExitCode.h"

#include <string>
#include <vector>

namespace cli {

/// The whole program, from its arguments (without its own name) to its end. Fills the engine's
/// hooks, and so may run once in a process, on the main thread, before there is any other.
ExitCode runProgram(const std::vector<std::string> &arguments);

} // namespace cli
