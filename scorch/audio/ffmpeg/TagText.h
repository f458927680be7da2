// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace scorch {

/// What a tag says, as UTF-8: its own bytes if they are that, else what they mean in Latin-1 (in
/// fact in Windows-1252, which adds the quotes and dashes that old tags are full of). Cut at a NUL,
/// blanks at the end too: old tags pad their fields with either.
std::string tagText(std::string_view bytes);

} // namespace scorch
