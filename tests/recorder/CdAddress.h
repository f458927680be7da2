// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Bytes.h"

#include <cstdint>

namespace recorder {

/// A logical block address: block 0 is the first after the first pregap, at 00:02:00.
using Lba = std::int32_t;

inline constexpr Lba kFramesPerSecond = 75;
inline constexpr Lba kPregapBlocks = 150;
/// The first block of the program area, at 00:00:00.
inline constexpr Lba kProgramStart = -kPregapBlocks;
inline constexpr std::size_t kRawSectorBytes = 2352;
inline constexpr std::size_t kUserDataBytes = 2048;
/// The sub-channels P to W of one sector.
inline constexpr std::size_t kSubChannelBytes = 96;

/// Minute, second and frame. The program area counts from 00:00:00; the first lead-in lies in
/// front of it and counts up to 99:59:74, so that minutes from 90 on are negative addresses.
struct Msf {
    int minute = 0;
    int second = 0;
    int frame = 0;

    bool operator==(const Msf &) const = default;
};

inline Msf toMsf(Lba lba) {
    const Lba frames = lba >= kProgramStart ? lba + 150 : lba + 450150;
    return {frames / (60 * kFramesPerSecond), frames / kFramesPerSecond % 60,
            frames % kFramesPerSecond};
}

inline Lba toLba(Msf msf) {
    const Lba frames = (msf.minute * 60 + msf.second) * kFramesPerSecond + msf.frame;
    return msf.minute < 90 ? frames - 150 : frames - 450150;
}

/// A length as minute, second and frame, with nothing added.
inline Msf durationMsf(Lba blocks) {
    return {blocks / (60 * kFramesPerSecond), blocks / kFramesPerSecond % 60,
            blocks % kFramesPerSecond};
}

inline Msf getMsf(ByteView bytes, std::size_t at) {
    return {static_cast<int>(get8(bytes, at)), static_cast<int>(get8(bytes, at + 1)),
            static_cast<int>(get8(bytes, at + 2))};
}

inline void putMsf(ByteSpan bytes, std::size_t at, Msf msf) {
    bytes[at] = low8(msf.minute);
    bytes[at + 1] = low8(msf.second);
    bytes[at + 2] = low8(msf.frame);
}

inline void putMsfBcd(ByteSpan bytes, std::size_t at, Msf msf) {
    bytes[at] = toBcd(msf.minute);
    bytes[at + 1] = toBcd(msf.second);
    bytes[at + 2] = toBcd(msf.frame);
}

/// An address in four bytes, as table of contents and sub-channel answers have it: block number, or
/// a zero and the MSF.
inline void putAddress(ByteSpan bytes, std::size_t at, Lba lba, bool asMsf) {
    if (!asMsf) {
        put32(bytes, at, lba);
        return;
    }
    bytes[at] = 0;
    putMsf(bytes, at + 1, toMsf(lba));
}

} // namespace recorder
