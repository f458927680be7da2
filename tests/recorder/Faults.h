// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/CdAddress.h"

#include <optional>
#include <string>
#include <string_view>

namespace recorder {

/// How a drive behaves, from the file `control` of its folder, which is read again whenever it has
/// changed. A statement holds as long as it stands in the file; `tray` and `disc` are what a hand
/// does: they act once, when they appear or when the number behind them changes.
///
///     disc PATH [#N]          puts the disc of that folder in, relative to the drive's; the tray
///     is
///                             closed afterwards. `disc none` takes it out.
///     tray open|closed [#N]   also against the lock, as the emergency hole does
///     write-error LBA         writing this block fails with a medium error
///     loss-of-streaming LBA   from this block on the host was too slow
///     power-calibration       fails, so that no recording can begin
///     read-error LBA
///     flip LBA BYTE           this byte of the user data is read inverted, with no error
///     read-offset SAMPLES     sound is read this many samples late (negative: early)
///     refuse-cd-text          a cue sheet that asks for text in the lead-in is invalid
///     silent MS               the drive does not answer: each command times out, at the latest
///                             after MS milliseconds
///     vanished                unplugged: no device node, and ENODEV on open descriptors
///     no-device               the same, but the node is still there: opening it gives ENXIO
///     busy                    another program holds it: EBUSY for whoever wants it exclusively
///     no-permission           EACCES
///     jammed                  the tray cannot be opened
///     slow X                  moves X sectors a second
///     becoming-ready N        after a disc was put in, the first N commands find it not ready (1)
///     long-operation N        an IMMED operation is in progress for N polls (1)
struct Faults {
    std::optional<std::string> disc; ///< With its number, as it stands.
    std::optional<std::string> tray;
    std::optional<Lba> writeError;
    std::optional<Lba> lossOfStreaming;
    std::optional<Lba> readError;
    std::optional<Lba> flipBlock;
    int flipByte = 0;
    int readOffset = 0;
    bool powerCalibration = false;
    bool refuseCdText = false;
    std::optional<int> silentMs;
    bool vanished = false;
    bool noDevice = false;
    bool busy = false;
    bool noPermission = false;
    bool jammed = false;
    int sectorsPerSecond = 0; ///< 0: at once.
    unsigned becomingReady = 1;
    unsigned longOperation = 1;

    bool operator==(const Faults &) const = default;
};

/// Nothing for text that is wrong; `error` then names the line.
std::optional<Faults> parseFaults(std::string_view text, std::string &error);

} // namespace recorder
