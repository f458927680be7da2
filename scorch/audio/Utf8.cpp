// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/Utf8.h"

#include <array>
#include <cstdint>

namespace scorch {
namespace {

/// Windows-1252 from 0x80 to 0x9F; what it leaves undefined becomes the replacement character.
constexpr std::array<char16_t, 32> windows1252 = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

/// The bytes of the well-formed character at `at`, 0 if there is none.
std::size_t characterLength(std::string_view text, std::size_t at) {
    const unsigned char first = byteAt(text, at);
    if (first < 0x80) {
        return 1;
    }
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() - at < length) {
        return 0;
    }
    // The second byte alone tells overlong forms, surrogates and what lies past the last plane.
    const unsigned char second = byteAt(text, at + 1);
    const unsigned char lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const unsigned char highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (second < lowest || second > highest) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if ((byteAt(text, at + i) & 0xC0) != 0x80) {
            return 0;
        }
    }
    return length;
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

bool isValidUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = characterLength(text, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

std::string toValidUtf8(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    if (isValidUtf8(text)) {
        return std::string(text);
    }
    std::string repaired;
    repaired.reserve(text.size() * 2);
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        const bool special = byte >= 0x80 && byte < 0xA0;
        append(repaired, special ? windows1252.at(byte - 0x80U) : char16_t{byte});
    }
    return repaired;
}

} // namespace scorch
