// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Tray.h"

#include <algorithm>

namespace recorder {

void openTray(DriveMemory &memory) {
    if (memory.isTrayOpen) {
        return;
    }
    memory.isTrayOpen = true;
    memory.operation = {};
    memory.notReadyPolls = 0;
    memory.event = MediaEvent::Removal;
    memory.hasUnitAttention = true;
}

void closeTray(DriveMemory &memory, unsigned notReadyPolls) {
    if (!memory.isTrayOpen) {
        return;
    }
    memory.isTrayOpen = false;
    const bool hasDisc = memory.discPath[0] != '\0';
    memory.notReadyPolls = hasDisc ? notReadyPolls : 0;
    memory.event = hasDisc ? MediaEvent::NewMedia : MediaEvent::None;
    memory.hasUnitAttention = hasDisc;
}

bool placeDisc(DriveMemory &memory, std::string_view folder) {
    if (folder.size() >= memory.discPath.size()) {
        return false;
    }
    memory.discPath.fill('\0');
    std::copy(folder.begin(), folder.end(), memory.discPath.begin());
    ++memory.discGeneration;
    return true;
}

} // namespace recorder
