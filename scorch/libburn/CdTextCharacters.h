// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/CdText.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace scorch {

/// The characters of a UTF-8 text in a code of CD-TEXT, each with its bytes: one in Latin-1, two in
/// MS-JIS, where players expect nothing narrower. What reads the same is put instead of what the
/// code has not: straight quotes for curved ones, wide letters for narrow ones. Control characters
/// become spaces: a tab means "as the track before" on a disc. Nothing where a character cannot be
/// said, or where the text is no UTF-8.
std::optional<std::vector<std::string>> cdTextCharacters(std::string_view text, CdTextCode code);

/// Whether a text has kana or kanji.
bool isJapanese(std::string_view text);

} // namespace scorch
