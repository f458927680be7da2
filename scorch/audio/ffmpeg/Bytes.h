// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace scorch {

// Numbers as files have them. The caller sees to it that the bytes are there.

inline std::uint32_t bigEndian16(const std::byte *at) {
    return (std::to_integer<std::uint32_t>(at[0]) << 8U) | std::to_integer<std::uint32_t>(at[1]);
}

inline std::uint32_t bigEndian32(const std::byte *at) {
    return (bigEndian16(at) << 16U) | bigEndian16(at + 2);
}

inline std::uint64_t bigEndian64(const std::byte *at) {
    return (std::uint64_t{bigEndian32(at)} << 32U) | bigEndian32(at + 4);
}

inline std::uint32_t littleEndian32(const std::byte *at) {
    return std::to_integer<std::uint32_t>(at[0]) | (std::to_integer<std::uint32_t>(at[1]) << 8U) |
           (std::to_integer<std::uint32_t>(at[2]) << 16U) |
           (std::to_integer<std::uint32_t>(at[3]) << 24U);
}

inline std::uint64_t littleEndian64(const std::byte *at) {
    return (std::uint64_t{littleEndian32(at + 4)} << 32U) | littleEndian32(at);
}

/// A size of ID3v2: four bytes of seven bits each.
inline std::uint32_t syncSafe32(const std::byte *at) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i) {
        value = (value << 7U) | (std::to_integer<std::uint32_t>(at[i]) & 0x7FU);
    }
    return value;
}

/// A name of four letters, as bigEndian32 reads it.
constexpr std::uint32_t fourCharacters(const char (&name)[5]) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i) {
        value = (value << 8U) | static_cast<unsigned char>(name[i]);
    }
    return value;
}

} // namespace scorch
