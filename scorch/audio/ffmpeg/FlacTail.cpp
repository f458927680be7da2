// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/FlacTail.h"

#include "scorch/audio/ffmpeg/Bytes.h"
#include "scorch/audio/ffmpeg/MpegAudio.h"

#include <algorithm>
#include <array>
#include <vector>

namespace scorch {
namespace {

constexpr std::size_t streamInfoBytes = 34;
constexpr std::size_t mostTailBytes = std::size_t{128} << 10;

template <class Value, Value polynomial>
constexpr std::array<Value, 256> crcTable() {
    constexpr unsigned bits = sizeof(Value) * 8;
    std::array<Value, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        unsigned value = i << (bits - 8);
        for (int bit = 0; bit < 8; ++bit) {
            const bool carry = (value & (1U << (bits - 1))) != 0;
            value = (value << 1U) ^ (carry ? polynomial : 0U);
        }
        table.at(i) = static_cast<Value>(value);
    }
    return table;
}

template <class Value, Value polynomial>
Value crc(std::span<const std::byte> bytes) {
    static constexpr std::array<Value, 256> table = crcTable<Value, polynomial>();
    constexpr unsigned shift = sizeof(Value) * 8 - 8;
    unsigned value = 0;
    for (const std::byte byte : bytes) {
        const unsigned index = (value >> shift) ^ std::to_integer<unsigned>(byte);
        value = static_cast<Value>((value << 8U) ^ table[index & 0xFFU]);
    }
    return static_cast<Value>(value);
}

/// The coded number of a frame header: UTF-8's scheme, up to seven bytes. Moves `at` behind it.
std::optional<std::uint64_t> codedNumber(std::span<const std::byte> bytes, std::size_t &at) {
    if (at >= bytes.size()) {
        return std::nullopt;
    }
    const auto first = std::to_integer<unsigned>(bytes[at++]);
    if (first < 0x80) {
        return first;
    }
    unsigned more = 1;
    while (more < 7 && (first & (0x40U >> (more - 1))) != 0) {
        ++more;
    }
    if ((first & 0x40U) == 0 || first == 0xFF) {
        return std::nullopt;
    }
    more -= 1;
    std::uint64_t value = first & (0x3FU >> more);
    for (unsigned i = 0; i < more; ++i) {
        if (at >= bytes.size() || (bytes[at] & std::byte{0xC0}) != std::byte{0x80}) {
            return std::nullopt;
        }
        value = (value << 6U) | std::to_integer<std::uint64_t>(bytes[at++] & std::byte{0x3F});
    }
    return value;
}

/// Where the frame whose header stands at the start of `bytes` ends, in samples; nothing if there
/// is no header, by its own checksum.
std::optional<std::uint64_t> endOfFrame(std::span<const std::byte> bytes, std::uint32_t blockSize) {
    if (bytes.size() < 6 || (bigEndian16(bytes.data()) & 0xFFFEU) != 0xFFF8U) {
        return std::nullopt;
    }
    const bool numbersSamples = (bytes[1] & std::byte{1}) != std::byte{0};
    const auto sizeCode = std::to_integer<unsigned>(bytes[2]) >> 4U;
    const auto rateCode = std::to_integer<unsigned>(bytes[2]) & 15U;
    std::size_t at = 4;
    const std::optional<std::uint64_t> number = codedNumber(bytes, at);
    const std::size_t extra = (sizeCode == 6   ? 1U
                               : sizeCode == 7 ? 2U
                                               : 0U) +
                              (rateCode == 12                     ? 1U
                               : rateCode == 13 || rateCode == 14 ? 2U
                                                                  : 0U);
    if (!number || sizeCode == 0 || rateCode == 15 || at + extra + 1 > bytes.size()) {
        return std::nullopt;
    }
    std::uint64_t samples = 0;
    if (sizeCode == 6) {
        samples = std::to_integer<std::uint64_t>(bytes[at]) + 1;
    } else if (sizeCode == 7) {
        samples = std::uint64_t{bigEndian16(bytes.data() + at)} + 1;
    } else if (sizeCode == 1) {
        samples = 192;
    } else {
        samples = sizeCode < 6 ? 576ULL << (sizeCode - 2) : 256ULL << (sizeCode - 8);
    }
    at += extra;
    if (crc<std::uint8_t, 0x07>(bytes.first(at)) != std::to_integer<std::uint8_t>(bytes[at])) {
        return std::nullopt;
    }
    return (numbersSamples ? *number : *number * blockSize) + samples;
}

} // namespace

std::optional<std::uint64_t> confirmedFlacLength(FileInput &input,
                                                 std::span<const std::byte> streamInfo) {
    if (streamInfo.size() < streamInfoBytes) {
        return std::nullopt;
    }
    const std::uint32_t blockSize = bigEndian16(streamInfo.data());
    const std::uint64_t total = bigEndian64(streamInfo.data() + 10) & 0xFFFFFFFFFULL;
    if (total == 0) {
        return std::nullopt;
    }
    const std::uint64_t end = endBeforeTags(input);
    std::vector<std::byte> tail(std::min<std::uint64_t>(end, mostTailBytes));
    if (input.readAt(end - tail.size(), tail) < tail.size()) {
        return std::nullopt;
    }
    const std::span<const std::byte> bytes(tail);
    for (std::size_t at = bytes.size(); at-- > 0;) {
        if (bytes[at] != std::byte{0xFF}) {
            continue;
        }
        const std::span<const std::byte> frame = bytes.subspan(at);
        if (endOfFrame(frame, blockSize) == total &&
            crc<std::uint16_t, 0x8005>(frame.first(frame.size() - 2)) ==
                bigEndian16(frame.data() + frame.size() - 2)) {
            return total;
        }
    }
    return std::nullopt;
}

} // namespace scorch
