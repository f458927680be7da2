// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace scorch {

/// The text for `key` in the user's language (through ScorchHooks::localizedText), its "%@"
/// placeholders filled in order with `values`. A "%@" inside a value is left alone. Any thread.
std::string localized(std::string_view key, const std::vector<std::string> &values = {});

} // namespace scorch
