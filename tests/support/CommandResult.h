// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

/// How another program ended and what it printed on both of its outputs, mixed.
struct CommandResult {
    int exitCode = -1; ///< 128 + the signal that ended it, as a shell has it.
    std::string output;
};

/// Runs a program (found in PATH) to its end, with no shell between. Standard input is empty.
CommandResult runCommand(const std::vector<std::string> &arguments);
