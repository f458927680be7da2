// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/CommandTable.h"

#include "tests/recorder/Commands.h"

#include <array>

namespace recorder {

namespace {

constexpr bool kAlways = true;
constexpr bool kInTurn = false;
constexpr bool kMedium = true;
constexpr bool kNoMedium = false;

constexpr std::array kCommands = {
    CommandEntry{0x00, testUnitReady, kInTurn, kMedium},
    CommandEntry{0x03, requestSense, kAlways, kNoMedium},
    CommandEntry{0x12, inquiry, kAlways, kNoMedium},
    CommandEntry{0x15, modeSelect6, kInTurn, kNoMedium},
    CommandEntry{0x1a, modeSense6, kInTurn, kNoMedium},
    CommandEntry{0x1b, startStopUnit, kInTurn, kNoMedium},
    CommandEntry{0x1e, preventAllowMediumRemoval, kInTurn, kNoMedium},
    CommandEntry{0x25, readCapacity, kInTurn, kMedium},
    CommandEntry{0x28, read10, kInTurn, kMedium},
    CommandEntry{0x2a, write10, kInTurn, kMedium},
    CommandEntry{0x2b, seek10, kInTurn, kMedium},
    CommandEntry{0x35, synchronizeCache, kInTurn, kMedium},
    CommandEntry{0x42, readSubChannel, kInTurn, kMedium},
    CommandEntry{0x43, readTocPmaAtip, kInTurn, kMedium},
    CommandEntry{0x46, getConfiguration, kAlways, kNoMedium},
    CommandEntry{0x4a, getEventStatusNotification, kAlways, kNoMedium},
    CommandEntry{0x51, readDiscInformation, kInTurn, kMedium},
    CommandEntry{0x52, readTrackInformation, kInTurn, kMedium},
    CommandEntry{0x54, sendOpcInformation, kInTurn, kMedium},
    CommandEntry{0x55, modeSelect10, kInTurn, kNoMedium},
    CommandEntry{0x5a, modeSense10, kInTurn, kNoMedium},
    CommandEntry{0x5b, closeTrackSession, kInTurn, kMedium},
    CommandEntry{0x5c, readBufferCapacity, kInTurn, kNoMedium},
    CommandEntry{0x5d, sendCueSheet, kInTurn, kMedium},
    CommandEntry{0xa1, blank, kInTurn, kMedium},
    CommandEntry{0xa8, read12, kInTurn, kMedium},
    CommandEntry{0xaa, write12, kInTurn, kMedium},
    CommandEntry{0xac, getPerformance, kInTurn, kNoMedium},
    CommandEntry{0xad, readDiscStructure, kInTurn, kMedium},
    CommandEntry{0xb6, setStreaming, kInTurn, kNoMedium},
    CommandEntry{0xb9, readCdMsf, kInTurn, kMedium},
    CommandEntry{0xbb, setCdSpeed, kInTurn, kNoMedium},
    CommandEntry{0xbd, mechanismStatus, kInTurn, kNoMedium},
    CommandEntry{0xbe, readCd, kInTurn, kMedium},
};

} // namespace

const CommandEntry *findCommand(unsigned opcode) {
    for (const CommandEntry &entry : kCommands) {
        if (entry.opcode == opcode) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace recorder
