// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

/// Whether the bytes are UTF-8 as the standard has it (no overlong forms, no surrogates).
bool isUtf8(std::string_view bytes);

/// Bytes from outside, such as a file name, as text that is safe to print: what is not UTF-8 and
/// what would move the cursor or change colours is written "\xNN". Any locale.
std::string displayText(std::string_view bytes);

/// Bytes as UTF-8, with U+FFFD in place of each byte that is not. Control characters stay.
std::string repairedUtf8(std::string_view bytes);

/// The columns that a text takes on a terminal: two for a wide character, none for a combining one.
std::size_t columnsOf(std::string_view utf8);

/// The text, cut at a character so that it takes at most so many columns; "…" stands at its end
/// then.
std::string elided(std::string_view utf8, std::size_t columns);

} // namespace cli
