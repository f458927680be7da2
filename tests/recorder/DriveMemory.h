// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/CdAddress.h"
#include "tests/recorder/Disc.h"
#include "tests/recorder/Sense.h"

#include <array>
#include <cstdint>
#include <type_traits>

namespace recorder {

enum class WriteMode : std::uint8_t { None = 0, TrackAtOnce = 1, SessionAtOnce = 2 };

inline constexpr std::size_t kWritePageBytes = 0x34;
inline constexpr std::size_t kCueSheetLimit = std::size_t{16} * 1024;

/// A recording that is under way, or a cue sheet that waits for its first block.
struct Recording {
    WriteMode mode = WriteMode::None;
    bool isSimulated = false;
    bool isTextComplete = false;         ///< The packs of the lead-in have begun to repeat.
    SectorForm form = SectorForm::Audio; ///< Track at once: of the track.
    Byte control = 0;                    ///< The same.
    Lba start = 0;                       ///< The same: where it begins.
    Lba next = 0;                        ///< The block that must be written next.
    std::int32_t owner = 0;              ///< Process that wrote last.
    std::uint32_t cueBytes = 0;
    std::array<Byte, kCueSheetLimit> cue{};
};

/// A command that was answered before it ended (IMMED).
struct LongOperation {
    std::uint32_t pollsLeft = 0;
    std::uint32_t polls = 0;
    bool isWriting = false; ///< The session is being closed, as against blanking or calibration.
};

/// What media event the host has not been told yet (MMC, class 4).
enum class MediaEvent : std::uint8_t { None = 0, EjectRequest = 1, NewMedia = 2, Removal = 3 };

/// The volatile memory of a drive, shared by all processes that use it: laid out plainly, because
/// it lives in a mapped file, and written only under the drive's lock. A file of zeros is a drive
/// that was just switched on.
struct DriveMemory {
    std::uint32_t layout = 0;         ///< kLayout once it was set up.
    std::uint32_t discGeneration = 0; ///< Grows whenever the disc or its state changes.
    bool isTrayOpen = false;
    bool isLocked = false;
    bool hasUnitAttention = false;
    MediaEvent event = MediaEvent::None;
    std::uint32_t notReadyPolls = 0;
    Sense lastSense{};
    LongOperation operation{};
    std::array<Byte, kWritePageBytes> writePage{};
    std::int32_t readSpeed = 0; ///< kB/s.
    std::int32_t writeSpeed = 0;
    Lba lastPlayed = 0;                 ///< Where READ SUB-CHANNEL finds the head.
    std::array<char, 1024> discPath{};  ///< Empty: no disc on the tray.
    std::array<char, 1024> discOrder{}; ///< The `disc` statement that was carried out last.
    std::array<char, 64> trayOrder{};   ///< The same of `tray`.
    Recording recording{};
};

inline constexpr std::uint32_t kLayout = 0x43445201;

static_assert(std::is_trivially_copyable_v<DriveMemory>);

} // namespace recorder
