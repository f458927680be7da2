// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace scorch {

/// Numbers as drives write them. What lies behind the end of a short answer reads as 0.
inline std::uint8_t byteAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return at < bytes.size() ? bytes[at] : std::uint8_t{0};
}

inline unsigned wordAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<unsigned>(byteAt(bytes, at)) << 8U | byteAt(bytes, at + 1);
}

inline std::uint32_t longAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return std::uint32_t{wordAt(bytes, at)} << 16U | wordAt(bytes, at + 2);
}

/// A signed block address.
inline std::int64_t addressAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<std::int32_t>(longAt(bytes, at));
}

} // namespace scorch
