// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/CdTextCharacters.h"

#include "scorch/support/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iconv.h>

namespace scorch {
namespace {

using CodePoints = std::u32string;

std::optional<CodePoints> codePoints(std::string_view text) {
    CodePoints result;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0) {
            return std::nullopt;
        }
        auto value = static_cast<unsigned char>(text[0]) & (length == 1 ? 0x7FU : 0x7FU >> length);
        for (std::size_t at = 1; at < length; ++at) {
            value = value << 6U | (static_cast<unsigned char>(text[at]) & 0x3FU);
        }
        result.push_back(value);
        text.remove_prefix(length);
    }
    return result;
}

/// Letters that stand in file names as a letter and a mark behind it: all that Latin-1 has.
struct Composition {
    char32_t mark;
    std::u32string_view plain;
    std::u32string_view composed;
};
constexpr std::array compositions = {
    Composition{0x300, U"AEIOUaeiou", U"ÀÈÌÒÙàèìòù"},
    Composition{0x301, U"AEIOUYaeiouy", U"ÁÉÍÓÚÝáéíóúý"},
    Composition{0x302, U"AEIOUaeiou", U"ÂÊÎÔÛâêîôû"},
    Composition{0x303, U"ANOano", U"ÃÑÕãñõ"},
    Composition{0x308, U"AEIOUaeiouy", U"ÄËÏÖÜäëïöüÿ"},
    Composition{0x30A, U"Aa", U"Åå"},
    Composition{0x327, U"Cc", U"Çç"},
};

constexpr char32_t voicedMark = 0x3099;
constexpr char32_t halfVoicedMark = 0x309A;

/// A kana with a mark is the next one, or the one after that, in the order of Unicode.
std::optional<char32_t> composedKana(char32_t kana, char32_t mark) {
    static constexpr std::u32string_view voiced = U"カキクケコサシスセソタチツテトハヒフヘホ"
                                                  U"かきくけこさしすせそたちつてとはひふへほ";
    static constexpr std::u32string_view halfVoiced = U"ハヒフヘホはひふへほ";
    if (mark == voicedMark && kana == U'ウ') {
        return U'ヴ';
    }
    if (mark == voicedMark && voiced.find(kana) != std::u32string_view::npos) {
        return kana + 1;
    }
    if (mark == halfVoicedMark && halfVoiced.find(kana) != std::u32string_view::npos) {
        return kana + 2;
    }
    return std::nullopt;
}

std::optional<char32_t> composed(char32_t plain, char32_t mark) {
    for (const Composition &composition : compositions) {
        const std::size_t at = composition.plain.find(plain);
        if (composition.mark == mark && at != std::u32string_view::npos) {
            return composition.composed[at];
        }
    }
    return composedKana(plain, mark);
}

CodePoints compose(const CodePoints &text) {
    CodePoints result;
    for (const char32_t point : text) {
        const auto whole = result.empty() ? std::nullopt : composed(result.back(), point);
        whole ? void(result.back() = *whole) : result.push_back(point);
    }
    return result;
}

/// What reads the same in plain letters.
std::u32string_view plainly(char32_t point) {
    struct Substitute {
        char32_t point;
        std::u32string_view text;
    };
    static constexpr std::array substitutes = {
        Substitute{0x2018, U"'"},   Substitute{0x2019, U"'"},  Substitute{0x201A, U"'"},
        Substitute{0x201B, U"'"},   Substitute{0x2032, U"'"},  Substitute{0x2BC, U"'"},
        Substitute{0x201C, U"\""},  Substitute{0x201D, U"\""}, Substitute{0x201E, U"\""},
        Substitute{0x201F, U"\""},  Substitute{0x2033, U"\""}, Substitute{0x2010, U"-"},
        Substitute{0x2011, U"-"},   Substitute{0x2012, U"-"},  Substitute{0x2013, U"-"},
        Substitute{0x2014, U"-"},   Substitute{0x2015, U"-"},  Substitute{0x2212, U"-"},
        Substitute{0x2026, U"..."}, Substitute{0x2022, U"·"},  Substitute{0x2044, U"/"},
        Substitute{0x152, U"OE"},   Substitute{0x153, U"oe"},  Substitute{0x2122, U"(TM)"},
        Substitute{0x20AC, U"EUR"}, Substitute{0xA0, U" "},    Substitute{0x202F, U" "},
        Substitute{0x3000, U" "},   Substitute{0xAD, U""},     Substitute{0x200B, U""},
        Substitute{0x200E, U""},    Substitute{0xFEFF, U""},
    };
    const auto *const found =
        std::find_if(substitutes.begin(), substitutes.end(),
                     [point](const Substitute &substitute) { return substitute.point == point; });
    static constexpr std::u32string_view itself = U"\uFFFF";
    return found != substitutes.end() ? found->text : itself;
}

bool isControl(char32_t point) {
    return point < 0x20 || (point >= 0x7F && point < 0xA0);
}

std::optional<std::vector<std::string>> latin1(const CodePoints &text) {
    std::vector<std::string> result;
    for (const char32_t point : compose(text)) {
        const std::u32string_view plain = plainly(point);
        const std::u32string_view shown =
            plain == U"\uFFFF" ? std::u32string_view(&point, 1) : plain;
        for (const char32_t shownPoint : shown) {
            if (shownPoint > 0xFF) {
                return std::nullopt;
            }
            result.emplace_back(1, isControl(shownPoint) ? ' ' : static_cast<char>(shownPoint));
        }
    }
    return result;
}

/// Narrow katakana, U+FF61 to U+FF9F, in their wide forms; the marks are composed later.
char32_t wideKana(char32_t point) {
    static constexpr std::u32string_view wide =
        U"。「」、・ヲァィゥェォャュョッーアイウエオカキクケコサシスセソタチツテトナニヌネノ"
        U"ハヒフヘホマミムメモヤユヨラリルレロワン\u3099\u309A";
    return wide[point - 0xFF61];
}

/// Letters of Latin-1 from U+00C0 on without their accents, which MS-JIS does not have.
char32_t withoutAccent(char32_t point) {
    static constexpr std::u32string_view plain = U"AAAAAAACEEEEIIIIDNOOOOO×OUUUUYTs"
                                                 U"aaaaaaaceeeeiiiidnooooo÷ouuuuyty";
    return plain[point - 0xC0];
}

/// As JIS X 0208 has it: wide, and in the variant that the code page knows.
char32_t wideForm(char32_t point) {
    if (point >= 0xC0 && point <= 0xFF) {
        point = withoutAccent(point);
    }
    struct Variant {
        char32_t point;
        char32_t wide;
    };
    static constexpr std::array variants = {
        Variant{U' ', 0x3000},           Variant{U'"', 0x201D},   Variant{U'\'', 0x2019},
        Variant{0xA0, 0x3000},           Variant{0x2013, 0x2015}, Variant{0x2014, 0x2015},
        Variant{0x2010, 0xFF0D},         Variant{0x2011, 0xFF0D}, Variant{0x2212, 0xFF0D},
        Variant{0x301C, 0xFF5E},         Variant{0x2016, 0x2225}, Variant{0xA2, 0xFFE0},
        Variant{0xA3, 0xFFE1},           Variant{0xA5, 0xFFE5},   Variant{0xAC, 0xFFE2},
        Variant{0x2022, 0x30FB},         Variant{0xB7, 0x30FB},   Variant{voicedMark, 0x309B},
        Variant{halfVoicedMark, 0x309C},
    };
    const auto *const found =
        std::find_if(variants.begin(), variants.end(),
                     [point](const Variant &variant) { return variant.point == point; });
    if (found != variants.end()) {
        return found->wide;
    }
    return point > 0x20 && point < 0x7F ? point + 0xFEE0 : point;
}

/// UTF-32 to Windows code page 932, which is MS-JIS with its extensions.
class JisConverter {
public:
    JisConverter() : handle_(iconv_open("CP932", "UTF-32LE")) {}
    ~JisConverter() {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }
    JisConverter(const JisConverter &) = delete;
    JisConverter &operator=(const JisConverter &) = delete;

    /// Two bytes, or nothing.
    std::optional<std::string> convert(char32_t point) {
        std::array<char, 4> input{};
        for (std::size_t at = 0; at < input.size(); ++at) {
            input[at] = static_cast<char>(point >> (8 * at) & 0xFFU);
        }
        std::array<char, 8> output{};
        char *from = input.data();
        char *to = output.data();
        std::size_t fromLeft = input.size();
        std::size_t toLeft = output.size();
        if (!isOpen() || iconv(handle_, &from, &fromLeft, &to, &toLeft) != 0 ||
            output.size() - toLeft != 2) {
            if (isOpen()) {
                iconv(handle_, nullptr, nullptr, nullptr, nullptr);
            }
            return std::nullopt;
        }
        return std::string(output.data(), 2);
    }

private:
    /// What iconv_open answers where it fails.
    bool isOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); } // NOLINT

    iconv_t handle_;
};

std::optional<std::vector<std::string>> msJis(const CodePoints &text) {
    CodePoints wide;
    for (const char32_t point : text) {
        wide += point >= 0xFF61 && point <= 0xFF9F ? wideKana(point) : point;
    }
    JisConverter converter;
    std::vector<std::string> result;
    for (const char32_t point : compose(wide)) {
        auto bytes = converter.convert(wideForm(isControl(point) ? U' ' : point));
        if (!bytes) {
            return std::nullopt;
        }
        result.push_back(std::move(*bytes));
    }
    return result;
}

} // namespace

std::optional<std::vector<std::string>> cdTextCharacters(std::string_view text, CdTextCode code) {
    const auto points = codePoints(text);
    if (!points) {
        return std::nullopt;
    }
    return code == CdTextCode::latin1 ? latin1(*points) : msJis(*points);
}

bool isJapanese(std::string_view text) {
    const CodePoints points = codePoints(text).value_or(CodePoints());
    return std::any_of(points.begin(), points.end(), [](char32_t point) {
        const bool isKana =
            (point >= 0x3041 && point <= 0x30FF) || (point >= 0xFF66 && point <= 0xFF9F);
        return isKana || (point >= 0x4E00 && point <= 0x9FFF);
    });
}

} // namespace scorch
