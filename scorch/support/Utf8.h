// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace scorch {

/// The length in bytes of the character that `text`, which is not empty, begins with; 0 if it
/// begins with none (RFC 3629: overlong forms, surrogates and cut sequences are not characters).
std::size_t characterLength(std::string_view text);

/// Bytes for a person to read: what is not UTF-8 is put as U+FFFD, a byte at a time. Only for
/// showing: two names may look the same.
std::string readableText(std::string_view bytes);

/// As much of a UTF-8 text as `maximumBytes` hold, whole characters only.
std::string_view cutAtCharacter(std::string_view text, std::size_t maximumBytes);

} // namespace scorch
