// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/TextLines.h"

namespace recorder {

namespace {

std::vector<std::string_view> wordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    while (!line.empty()) {
        const std::size_t end = line.find(' ');
        if (end != 0) {
            words.push_back(line.substr(0, end));
        }
        line = end == std::string_view::npos ? std::string_view{} : line.substr(end + 1);
    }
    return words;
}

} // namespace

std::vector<TextLine> statementsOf(std::string_view text) {
    std::vector<TextLine> statements;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::vector<std::string_view> words = wordsOf(line);
        if (!words.empty()) {
            statements.push_back({number, line, std::move(words)});
        }
    }
    return statements;
}

bool parseHexByte(std::string_view digits, Byte &value) {
    const char *end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value, 16);
    return digits.size() == 2 && result.ec == std::errc{} && result.ptr == end;
}

void appendHexByte(std::string &text, Byte value) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    text += kDigits[value >> 4U];
    text += kDigits[value & 15U];
}

} // namespace recorder
