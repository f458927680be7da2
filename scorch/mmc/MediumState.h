// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/MmcDevice.h"
#include "scorch/mmc/MmcError.h"
#include "scorch/support/Result.h"

#include <chrono>
#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// A track as the table of contents has it (MMC-5, READ TOC/PMA/ATIP format 0000b).
struct TocTrack {
    int number = 0; ///< 1 to 99.
    bool isData = false;
    std::int64_t start = 0; ///< LBA of its index 1.

    bool operator==(const TocTrack &) const = default;
};

/// What is on the tray, as the drive tells it.
struct MediumState {
    enum class Kind { none, cdRom, cdR, cdRw, other };
    enum class Contents { blank, appendable, complete, unknown };

    bool trayOpen = false;
    unsigned profile = 0; ///< MMC's number of the kind of medium; 0 where the drive tells none.
    Kind kind = Kind::none;
    Contents contents = Contents::unknown;
    std::int64_t freeSectors = 0; ///< Of a blank CD: what may be written from LBA 0; 0 otherwise.
    std::vector<TocTrack> tracks; ///< In order; empty on a blank disc.
    std::int64_t leadOut = 0;     ///< LBA of the lead-out; 0 on a blank disc.
    std::vector<int> writeSpeeds; ///< kB/s (1000 bytes; 1x is 176.4), fastest first; may be empty.

    bool isCd() const { return kind == Kind::cdRom || kind == Kind::cdR || kind == Kind::cdRw; }
    bool operator==(const MediumState &) const = default;
};

/// Asks the drive what it holds: profile, disc information, table of contents, ATIP, speeds. Waits
/// up to `patience` for a drive that is becoming ready. A unit attention is asked again. No disc is
/// no error. After a stop request no further command is sent, and the answer is Kind::interrupted.
Result<MediumState, MmcError> examineMedium(MmcDevice &device, std::chrono::milliseconds patience,
                                            const std::stop_token &stop = {});

/// What people call that medium: "CD-R", "DVD+R DL". Empty where there is none.
std::string mediumName(const MediumState &medium);

} // namespace scorch
