// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string_view>

namespace scorch {

/// Whether `a` stands before `b` in a list that people read: "Track 2" before "Track 10".
///
/// File names are bytes, so the order is one over bytes and needs no locale. Runs of ASCII digits
/// compare by value, however long; ASCII letters compare without their case. Names that are equal
/// so far are told apart by leading zeros (fewer first) and then by their bytes, so that two
/// different names are never equivalent. A strict weak order; any thread.
bool naturalLess(std::string_view a, std::string_view b);

} // namespace scorch
