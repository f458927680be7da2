// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/DriveMemory.h"

#include <optional>

namespace recorder {

/// The write parameters mode page (05h), read.
struct WriteParameters {
    WriteMode mode = WriteMode::TrackAtOnce;
    bool isTest = false;
    bool isUnderrunFree = false;
    bool allowsNextSession = false;
    Byte control = kControlData;             ///< "Track mode".
    SectorForm form = SectorForm::Mode1;     ///< Of a track at once.
    std::size_t blockBytes = kUserDataBytes; ///< What the host sends for its blocks.
};

Bytes defaultWritePage();
/// Ones where a host may set something.
Bytes changeableWritePage();

/// What holds now: the page last set, or the default.
WriteParameters writeParameters(const DriveMemory &memory);

/// Keeps a page that a host sent. False, and nothing kept, for a way of writing that the drive does
/// not have: packets, raw, or track at once with a block type other than 2352 bytes of sound and
/// 2048 or 2336 of data.
bool acceptWritePage(DriveMemory &memory, ByteView page);

} // namespace recorder
