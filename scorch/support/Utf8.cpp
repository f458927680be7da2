// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/Utf8.h"

#include <algorithm>
#include <cstdint>

namespace scorch {
namespace {

struct Lead {
    std::size_t length = 0;
    std::uint8_t lowestSecond = 0x80;
    std::uint8_t highestSecond = 0xBF;
};

/// What the first byte says about the ones behind it. The narrowed second bytes shut out overlong
/// forms, surrogates and what lies beyond U+10FFFF.
Lead leadOf(std::uint8_t byte) {
    if (byte < 0x80) {
        return {1};
    }
    if (byte < 0xC2 || byte > 0xF4) {
        return {0};
    }
    switch (byte) {
    case 0xE0:
        return {3, 0xA0, 0xBF};
    case 0xED:
        return {3, 0x80, 0x9F};
    case 0xF0:
        return {4, 0x90, 0xBF};
    case 0xF4:
        return {4, 0x80, 0x8F};
    default:
        return {byte < 0xE0 ? std::size_t{2} : byte < 0xF0 ? std::size_t{3} : std::size_t{4}};
    }
}

} // namespace

std::size_t characterLength(std::string_view text) {
    const auto byteAt = [text](std::size_t at) {
        return static_cast<std::uint8_t>(text[at]);
    };
    const Lead lead = leadOf(byteAt(0));
    if (lead.length < 2 || lead.length > text.size()) {
        return lead.length == 1 ? 1 : 0;
    }
    if (byteAt(1) < lead.lowestSecond || byteAt(1) > lead.highestSecond) {
        return 0;
    }
    for (std::size_t at = 2; at < lead.length; ++at) {
        if ((byteAt(at) & 0xC0U) != 0x80U) {
            return 0;
        }
    }
    return lead.length;
}

std::string readableText(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0) {
            text += "\uFFFD";
        } else {
            text += bytes.substr(0, length);
        }
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

std::string_view cutAtCharacter(std::string_view text, std::size_t maximumBytes) {
    if (text.size() <= maximumBytes) {
        return text;
    }
    std::size_t end = maximumBytes;
    while (end > 0 && (static_cast<std::uint8_t>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return text.substr(0, end);
}

} // namespace scorch
