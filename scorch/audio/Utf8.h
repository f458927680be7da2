// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace scorch {

/// `text` if it is valid UTF-8; else what it says if it is taken for Latin-1 (in fact for
/// Windows-1252, which adds the quotes and dashes that old tags are full of). NUL and what follows
/// it is cut off, blanks at the end too: ID3v1 pads its fields with either.
std::string toValidUtf8(std::string_view text);

/// Whether `text` is well-formed UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool isValidUtf8(std::string_view text);

} // namespace scorch
