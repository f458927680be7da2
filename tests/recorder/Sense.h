// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Bytes.h"

#include <array>

namespace recorder {

/// Why a command was not carried out: sense key, additional sense code and its qualifier.
struct Sense {
    Byte key = 0;
    Byte code = 0;
    Byte qualifier = 0;
    /// Of a long operation, 0 to 0xffff; only meaningful for "not ready, operation in progress".
    std::uint16_t progress = 0;
    /// Of a medium error: the block concerned.
    std::int32_t block = 0;

    bool operator==(const Sense &other) const {
        return key == other.key && code == other.code && qualifier == other.qualifier;
    }
};

namespace sense {
inline constexpr Sense kNone{};
inline constexpr Sense kBecomingReady{2, 0x04, 0x01};
inline constexpr Sense kOperationInProgress{2, 0x04, 0x07};
inline constexpr Sense kLongWriteInProgress{2, 0x04, 0x08};
inline constexpr Sense kNoMediumTrayClosed{2, 0x3a, 0x01};
inline constexpr Sense kNoMediumTrayOpen{2, 0x3a, 0x02};
inline constexpr Sense kWriteError{3, 0x0c, 0x00};
inline constexpr Sense kLossOfStreaming{3, 0x0c, 0x09};
inline constexpr Sense kUnrecoveredReadError{3, 0x11, 0x00};
inline constexpr Sense kPowerCalibrationError{3, 0x73, 0x03};
inline constexpr Sense kParameterListLengthError{5, 0x1a, 0x00};
inline constexpr Sense kInvalidCommand{5, 0x20, 0x00};
inline constexpr Sense kBlockOutOfRange{5, 0x21, 0x00};
inline constexpr Sense kInvalidAddressForWrite{5, 0x21, 0x02};
inline constexpr Sense kInvalidFieldInCommand{5, 0x24, 0x00};
inline constexpr Sense kInvalidFieldInParameters{5, 0x26, 0x00};
inline constexpr Sense kCommandSequenceError{5, 0x2c, 0x00};
inline constexpr Sense kCannotWriteIncompatibleMedium{5, 0x30, 0x05};
inline constexpr Sense kIncompatibleFormat{5, 0x30, 0x02};
inline constexpr Sense kEjectFailed{4, 0x53, 0x00};
inline constexpr Sense kRemovalPrevented{5, 0x53, 0x02};
inline constexpr Sense kEndOfUserArea{5, 0x63, 0x00};
inline constexpr Sense kIllegalModeForTrack{5, 0x64, 0x00};
inline constexpr Sense kSessionFixationError{5, 0x72, 0x00};
inline constexpr Sense kMediumMayHaveChanged{6, 0x28, 0x00};
} // namespace sense

/// Sense data in the fixed format (response code 70h), 18 bytes.
inline std::array<Byte, 18> fixedSense(const Sense &sense) {
    std::array<Byte, 18> data{};
    data[0] = 0x70;
    data[2] = sense.key;
    data[7] = 10;
    data[12] = sense.code;
    data[13] = sense.qualifier;
    if (sense.key == 2 && sense.code == 0x04) {
        data[15] = 0x80;
        put16(data, 16, sense.progress);
    }
    if (sense.key == 3) {
        data[0] = 0xf0; // The information field holds the block.
        put32(data, 3, sense.block);
    }
    return data;
}

} // namespace recorder
