// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Command.h"
#include "tests/recorder/DiscStore.h"
#include "tests/recorder/DriveMemory.h"
#include "tests/recorder/DriveProfile.h"
#include "tests/recorder/Faults.h"

#include <optional>

namespace recorder {

/// What the command groups work on, for the length of one command.
struct Device {
    const DriveProfile &profile;
    const Faults &faults;
    DriveMemory &memory;
    DiscStore &store;
    std::optional<Disc> &disc;  ///< On the tray, also while the tray is out.
    bool isDiscChanged = false; ///< A command sets it: the disc's state is to be stored.
    int delayMs = 0;            ///< What a command adds to the time it takes.

    bool hasMedium() const { return disc.has_value() && !memory.isTrayOpen; }

    /// A slow drive takes its time for these sectors.
    void pace(std::size_t sectors) {
        if (faults.sectorsPerSecond > 0) {
            delayMs += static_cast<int>(sectors * 1000 /
                                        static_cast<std::size_t>(faults.sectorsPerSecond));
        }
    }

    /// After a command with IMMED: the operation seems to go on for a few polls.
    void beginOperation(bool isImmediate, bool isWriting) {
        if (isImmediate) {
            memory.operation = {faults.longOperation, faults.longOperation, isWriting};
        }
    }
};

} // namespace recorder
