// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/TagText.h"

#include "scorch/support/Utf8.h"

#include <array>

namespace scorch {
namespace {

/// Windows-1252 from 0x80 to 0x9F; what it leaves undefined becomes the replacement character.
constexpr std::array<char16_t, 32> windows1252 = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

/// Appends a character below U+10000.
void append(std::string &text, char16_t character) {
    const auto byte = [](unsigned value) {
        return static_cast<char>(value);
    };
    if (character < 0x80) {
        text += byte(character);
    } else if (character < 0x800) {
        text += byte(0xC0U | (character >> 6U));
        text += byte(0x80U | (character & 0x3FU));
    } else {
        text += byte(0xE0U | (character >> 12U));
        text += byte(0x80U | ((character >> 6U) & 0x3FU));
        text += byte(0x80U | (character & 0x3FU));
    }
}

} // namespace

std::string tagText(std::string_view bytes) {
    std::string_view text = bytes.substr(0, bytes.find('\0'));
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    if (isUtf8(text)) {
        return std::string(text);
    }
    std::string converted;
    converted.reserve(text.size() * 2);
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        const bool special = byte >= 0x80 && byte < 0xA0;
        append(converted, special ? windows1252.at(byte - 0x80U) : char16_t{byte});
    }
    return converted;
}

} // namespace scorch
