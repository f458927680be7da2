// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DisplayText.h"

#include <array>
#include <clocale>
#include <cwchar>

namespace cli {
namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

struct Character {
    char32_t code = 0;
    std::size_t bytes = 0; ///< 0: the first byte begins no character.
};

/// The character at the start of a text that is not empty.
Character firstCharacter(std::string_view text) {
    struct Form {
        unsigned char mask;
        unsigned char lead;
        char32_t smallest;
    };
    static constexpr std::array<Form, 4> forms = {
        {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};
    const auto first = static_cast<unsigned char>(text.front());
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const Form &form = forms[i];
        if ((first & form.mask) != form.lead) {
            continue;
        }
        if (text.size() < i + 1) {
            return {};
        }
        auto code = static_cast<char32_t>(first & static_cast<unsigned char>(~form.mask));
        for (std::size_t k = 1; k <= i; ++k) {
            const auto next = static_cast<unsigned char>(text[k]);
            if ((next & 0xC0) != 0x80) {
                return {};
            }
            code = (code << 6U) | (next & 0x3FU);
        }
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        if (code < form.smallest || code > 0x10FFFF || surrogate) {
            return {};
        }
        return {code, i + 1};
    }
    return {};
}

/// Calls `take(character, bytes)` for each character and for each byte that is part of none.
template <class Take>
void forEachCharacter(std::string_view text, Take take) {
    while (!text.empty()) {
        const Character character = firstCharacter(text);
        const std::size_t length = character.bytes == 0 ? 1 : character.bytes;
        take(character, text.substr(0, length));
        text.remove_prefix(length);
    }
}

/// C0, DEL and C1, line separators, and the marks that reverse the direction of what follows.
bool isUnsafe(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code <= 0x9F) || code == 0x2028 || code == 0x2029 ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

/// Character classes of Unicode for this thread, whatever the user's locale: our texts are UTF-8.
class UnicodeLocale {
public:
    UnicodeLocale() : previous_(uselocale(unicode())) {}
    ~UnicodeLocale() { uselocale(previous_); }
    UnicodeLocale(const UnicodeLocale &) = delete;
    UnicodeLocale &operator=(const UnicodeLocale &) = delete;

private:
    /// Null, which leaves the locale alone, on a system that has no C.UTF-8.
    static locale_t unicode() {
        static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        return locale;
    }

    locale_t previous_;
};

std::size_t columnsOfCharacter(char32_t code) {
    const int columns = wcwidth(static_cast<wchar_t>(code));
    return columns < 0 ? 1 : static_cast<std::size_t>(columns);
}

} // namespace

bool isUtf8(std::string_view bytes) {
    bool valid = true;
    forEachCharacter(bytes, [&valid](const Character &character, std::string_view) {
        valid = valid && character.bytes != 0;
    });
    return valid;
}

std::string displayText(std::string_view bytes) {
    std::string text;
    forEachCharacter(bytes, [&text](const Character &character, std::string_view raw) {
        if (character.bytes != 0 && !isUnsafe(character.code)) {
            text += raw;
            return;
        }
        for (const char c : raw) {
            const auto byte = static_cast<unsigned char>(c);
            text += "\\x";
            text += hexDigits[byte >> 4U];
            text += hexDigits[byte & 0xFU];
        }
    });
    return text;
}

std::string repairedUtf8(std::string_view bytes) {
    std::string text;
    forEachCharacter(bytes, [&text](const Character &character, std::string_view raw) {
        text += character.bytes != 0 ? raw : std::string_view("\xEF\xBF\xBD");
    });
    return text;
}

std::size_t columnsOf(std::string_view utf8) {
    const UnicodeLocale locale;
    std::size_t columns = 0;
    forEachCharacter(utf8, [&columns](const Character &character, std::string_view) {
        columns += columnsOfCharacter(character.code);
    });
    return columns;
}

std::string elided(std::string_view utf8, std::size_t columns) {
    if (columnsOf(utf8) <= columns) {
        return std::string(utf8);
    }
    if (columns == 0) {
        return {};
    }
    const UnicodeLocale locale;
    std::string text;
    std::size_t used = 1; // The dots.
    bool full = false;
    forEachCharacter(utf8, [&](const Character &character, std::string_view raw) {
        const std::size_t width = columnsOfCharacter(character.code);
        full = full || used + width > columns;
        if (!full) {
            used += width;
            text += raw;
        }
    });
    return text + "…";
}

} // namespace cli
