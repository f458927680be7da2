// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Commands.h"
#include "tests/recorder/Recording.h"
#include "tests/recorder/Tray.h"

namespace recorder {

namespace {

constexpr unsigned kMediaClass = 4;

} // namespace

Answer testUnitReady(Device & /*device*/, const Command & /*command*/) {
    return Answer::good();
}

Answer startStopUnit(Device &device, const Command &command) {
    const bool isLoadEject = command.bit(4, 1);
    const bool isStart = command.bit(4, 0);
    if (!isLoadEject) {
        return Answer::good();
    }
    if (isStart) {
        closeTray(device.memory, device.faults.becomingReady);
        return Answer::good();
    }
    if (device.memory.isLocked && !device.memory.isTrayOpen) {
        return Answer::check(sense::kRemovalPrevented);
    }
    if (device.faults.jammed) {
        return Answer::check(sense::kEjectFailed);
    }
    breakOff(device);
    openTray(device.memory);
    // Whoever asked for it need not be told.
    device.memory.hasUnitAttention = false;
    return Answer::good();
}

Answer preventAllowMediumRemoval(Device &device, const Command &command) {
    device.memory.isLocked = command.bit(4, 0);
    return Answer::good();
}

Answer getEventStatusNotification(Device &device, const Command &command) {
    if (!command.bit(1, 0)) { // Asynchronous notification does not exist.
        return Answer::check(sense::kInvalidFieldInCommand);
    }
    const bool isMediaAsked = (get8(command.cdb, 4) >> kMediaClass & 1U) != 0;
    Bytes data(isMediaAsked ? 8 : 4, 0);
    put16(data, 0, isMediaAsked ? 6 : 2);
    data[2] = isMediaAsked ? kMediaClass : 0x80; // No event of the classes asked for.
    data[3] = 1U << kMediaClass;
    if (isMediaAsked) {
        DriveMemory &memory = device.memory;
        data[4] = static_cast<Byte>(memory.event);
        data[5] = static_cast<Byte>((memory.isTrayOpen ? 1U : 0U) | (device.hasMedium() ? 2U : 0U));
        memory.event = MediaEvent::None;
    }
    return Answer::cut(std::move(data), get16(command.cdb, 7));
}

Answer mechanismStatus(Device &device, const Command &command) {
    Bytes data(8, 0);
    data[1] = device.memory.isTrayOpen ? 0x10 : 0;
    return Answer::cut(std::move(data), get16(command.cdb, 8));
}

Answer seek10(Device &device, const Command &command) {
    const Lba lba = getAddress(command.cdb, 2);
    if (lba < kProgramStart || lba > device.disc->capacity) {
        return Answer::check(sense::kBlockOutOfRange);
    }
    return Answer::good();
}

} // namespace recorder
