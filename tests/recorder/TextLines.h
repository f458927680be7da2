// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Bytes.h"

#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace recorder {

/// A line of a state or control file that says something. Views into the text it was taken from.
struct TextLine {
    int number = 0; ///< From 1, in the file.
    std::string_view text;
    std::vector<std::string_view> words; ///< Parted by spaces; never empty.
};

/// The lines that are neither empty nor comments (`#` as the first character).
std::vector<TextLine> statementsOf(std::string_view text);

/// The whole text as a decimal number; false, and `value` as it was, for anything else.
template <class Number>
bool parseNumber(std::string_view text, Number &value) {
    Number parsed{};
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, parsed);
    if (text.empty() || result.ec != std::errc{} || result.ptr != end) {
        return false;
    }
    value = parsed;
    return true;
}

/// Two hexadecimal digits.
bool parseHexByte(std::string_view digits, Byte &value);
void appendHexByte(std::string &text, Byte value);

} // namespace recorder
