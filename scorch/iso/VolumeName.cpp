// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/VolumeName.h"

#include "scorch/support/DiscContent.h"
#include "scorch/support/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace scorch {
namespace {

// ECMA-119 8.1: the descriptors start at sector 16; type, "CD001", version; a type 255 ends them.
constexpr std::size_t firstDescriptor = 16;
constexpr std::size_t volumeIdentifierOffset = 40;
constexpr std::size_t escapeSequencesOffset = 88;
constexpr int primaryType = 1;
constexpr int supplementaryType = 2;
constexpr int terminatorType = 255;

constexpr char32_t replacement = U'\uFFFD';

/// Decodes the first character and takes it off; a byte that begins none becomes U+FFFD.
char32_t takeCharacter(std::string_view &text) {
    const std::size_t length = characterLength(text);
    if (length == 0) {
        text.remove_prefix(1);
        return replacement;
    }
    const auto first = static_cast<unsigned char>(text[0]);
    char32_t character = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        character = character << 6 | (static_cast<unsigned char>(text[at]) & 0x3FU);
    }
    text.remove_prefix(length);
    return character;
}

bool isDescriptor(std::span<const std::byte> sector) {
    return std::memcmp(sector.data() + 1, "CD001", 5) == 0;
}

/// One of the three escape sequences that Joliet uses in a supplementary descriptor.
bool isJoliet(std::span<const std::byte> sector) {
    const std::byte *const escape = sector.data() + escapeSequencesOffset;
    return std::memcmp(escape, "%/@", 3) == 0 || std::memcmp(escape, "%/C", 3) == 0 ||
           std::memcmp(escape, "%/E", 3) == 0;
}

void put(std::span<std::byte> sector, const VolumeIdentifier &identifier) {
    std::copy(identifier.begin(), identifier.end(), sector.begin() + volumeIdentifierOffset);
}

} // namespace

VolumeIdentifier primaryVolumeIdentifier(std::string_view utf8) {
    VolumeIdentifier identifier;
    identifier.fill(std::byte{' '});
    const std::string_view held = cutAtCharacter(utf8, identifier.size());
    std::memcpy(identifier.data(), held.data(), held.size());
    return identifier;
}

VolumeIdentifier jolietVolumeIdentifier(std::string_view utf8) {
    VolumeIdentifier identifier;
    std::size_t used = 0;
    const auto append = [&](char32_t unit) {
        identifier[used++] = static_cast<std::byte>(unit >> 8);
        identifier[used++] = static_cast<std::byte>(unit & 0xFF);
    };
    while (!utf8.empty()) {
        const char32_t character = takeCharacter(utf8);
        const bool pair = character > 0xFFFF;
        if (used + (pair ? 4 : 2) > identifier.size()) {
            break;
        }
        if (pair) {
            append(0xD800 + ((character - 0x10000) >> 10));
            append(0xDC00 + ((character - 0x10000) & 0x3FF));
        } else {
            append(character);
        }
    }
    while (used < identifier.size()) {
        append(U' ');
    }
    return identifier;
}

bool stampVolumeName(std::span<std::byte> image, std::string_view utf8) {
    bool primary = false;
    for (std::size_t sector = firstDescriptor; (sector + 1) * dataSectorBytes <= image.size();
         ++sector) {
        const auto bytes = image.subspan(sector * dataSectorBytes, dataSectorBytes);
        if (!isDescriptor(bytes)) {
            return false;
        }
        const auto type = std::to_integer<int>(bytes[0]);
        if (type == primaryType) {
            put(bytes, primaryVolumeIdentifier(utf8));
            primary = true;
        } else if (type == supplementaryType && isJoliet(bytes)) {
            put(bytes, jolietVolumeIdentifier(utf8));
        } else if (type == terminatorType) {
            return primary;
        }
    }
    return false;
}

} // namespace scorch
