// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/Json.h"

#include "cli/DisplayText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace cli {
namespace {

/// The text in quotes. Only what JSON demands is escaped, and DEL and C1, which terminals act on.
std::string quoted(std::string_view bytes) {
    static constexpr std::string_view hexDigits = "0123456789abcdef";
    const std::string text = repairedUtf8(bytes);
    std::string result = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool secondControl = byte == 0xC2 && static_cast<unsigned char>(text[i + 1]) < 0xA0;
        const unsigned char code = secondControl ? static_cast<unsigned char>(text[i + 1]) : byte;
        if (byte == '"' || byte == '\\') {
            result += '\\';
            result += text[i];
        } else if (code < 0x20 || code == 0x7F || secondControl) {
            result += "\\u00";
            result += hexDigits[code >> 4U];
            result += hexDigits[code & 0xFU];
            i += secondControl ? 1 : 0;
        } else {
            result += text[i];
        }
    }
    return result + '"';
}

std::string percentEncoded(std::string_view bytes) {
    static constexpr std::string_view hexDigits = "0123456789ABCDEF";
    static constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                              "0123456789-._~/";
    std::string text;
    for (const char c : bytes) {
        if (plain.find(c) != std::string_view::npos) {
            text += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        text += '%';
        text += hexDigits[byte >> 4U];
        text += hexDigits[byte & 0xFU];
    }
    return text;
}

} // namespace

JsonObject::JsonObject(std::string_view event) {
    add("event", event);
}

JsonObject &JsonObject::add(std::string_view key, std::string_view text) {
    return addRaw(key, quoted(text));
}

JsonObject &JsonObject::add(std::string_view key, std::int64_t number) {
    return addRaw(key, std::to_string(number));
}

JsonObject &JsonObject::add(std::string_view key, std::uint64_t number) {
    return addRaw(key, std::to_string(number));
}

JsonObject &JsonObject::add(std::string_view key, bool value) {
    return addRaw(key, value ? "true" : "false");
}

JsonObject &JsonObject::add(std::string_view key, const std::vector<int> &numbers) {
    std::string list = "[";
    for (const int number : numbers) {
        list += (list.size() > 1 ? "," : "") + std::to_string(number);
    }
    return addRaw(key, list + ']');
}

JsonObject &JsonObject::addFraction(std::string_view key, double value) {
    // std::to_chars knows no locale, unlike printf.
    std::array<char, 400> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                            std::chars_format::fixed, 4);
    const bool written = error == std::errc() && std::isfinite(value);
    return addRaw(key, written ? std::string_view(digits.data(), end) : std::string_view("0"));
}

JsonObject &JsonObject::addPath(std::string_view bytes) {
    add("path", bytes);
    return isUtf8(bytes) ? *this : add("pathPercentEncoded", percentEncoded(bytes));
}

JsonObject &JsonObject::addRaw(std::string_view key, std::string_view value) {
    if (text_.size() > 1) {
        text_ += ',';
    }
    text_.append(quoted(key)).append(":").append(value);
    return *this;
}

} // namespace cli
