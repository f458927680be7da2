// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace recorder {

using Byte = std::uint8_t;
using Bytes = std::vector<Byte>;
using ByteView = std::span<const Byte>;
using ByteSpan = std::span<Byte>;

/// Numbers of command blocks and answers are big-endian and unsigned; a logical block address is a
/// two's complement number of 32 bits. A read beyond the end gives zeros, as a short command block
/// is one that ends in zeros.
inline unsigned get8(ByteView bytes, std::size_t at) {
    return at < bytes.size() ? bytes[at] : 0U;
}
inline unsigned get16(ByteView bytes, std::size_t at) {
    return get8(bytes, at) << 8U | get8(bytes, at + 1);
}
inline unsigned get24(ByteView bytes, std::size_t at) {
    return get8(bytes, at) << 16U | get16(bytes, at + 1);
}
inline std::uint32_t get32(ByteView bytes, std::size_t at) {
    return get16(bytes, at) << 16U | get16(bytes, at + 2);
}
inline std::int32_t getAddress(ByteView bytes, std::size_t at) {
    return static_cast<std::int32_t>(get32(bytes, at));
}

inline Byte low8(std::int64_t value) {
    return static_cast<Byte>(value & 0xff);
}
inline void put16(ByteSpan bytes, std::size_t at, std::int64_t value) {
    bytes[at] = low8(value >> 8);
    bytes[at + 1] = low8(value);
}
inline void put24(ByteSpan bytes, std::size_t at, std::int64_t value) {
    bytes[at] = low8(value >> 16);
    put16(bytes, at + 1, value);
}
inline void put32(ByteSpan bytes, std::size_t at, std::int64_t value) {
    put16(bytes, at, value >> 16);
    put16(bytes, at + 2, value);
}

/// Two decimal digits in a byte, as they stand on the disc.
inline Byte toBcd(int value) {
    return low8(value / 10 * 16 + value % 10);
}

} // namespace recorder
