// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Device.h"

namespace recorder {

using Handler = Answer (*)(Device &, const Command &);

/// How a command is carried out, and when.
struct CommandEntry {
    unsigned opcode = 0;
    Handler handler = nullptr;
    /// Answered in any state: a unit attention stays pending, nothing is waited for.
    bool isAlwaysAnswered = false;
    bool needsMedium = false;
};

/// Nothing for a command that the drive does not know.
const CommandEntry *findCommand(unsigned opcode);

} // namespace recorder
