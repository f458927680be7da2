// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Disc.h"

#include <optional>
#include <string>
#include <string_view>

namespace recorder {

/// The text of a disc's state file: one statement a line, words parted by single spaces, `#` begins
/// a comment. What parseDisc(formatDisc(disc)) gives is equal to `disc`.
///
///     cd recorder disc
///     kind cd-r                       cd-rom, cd-r, cd-rw, dvd-rom, dvd-r
///     lead-in 97:27:00
///     capacity 359849                 blocks up to the last possible lead-out
///     catalog 1234567890123
///     session closed lead-out 600     or: session open
///     track 1 audio control 0 pregap 150 start 0 end 600 recorded 600 run-out 0 isrc … index …
///     final
///     cd-text 800000…                 a pack in hexadecimal digits, in order
std::string formatDisc(const Disc &disc);

/// Nothing for text that is not the state of a disc; `error` then says which line is wrong.
std::optional<Disc> parseDisc(std::string_view text, std::string &error);

} // namespace recorder
