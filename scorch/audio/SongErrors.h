// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace scorch {

/// What can go wrong with a song between its check and its burn, told so that a person knows which
/// file it was and what to do. `detail` is for the log.

ScorchError songMissing(const std::filesystem::path &path, std::string detail);
ScorchError songUnreadable(const std::filesystem::path &path, std::string detail);
ScorchError songChanged(const std::filesystem::path &path, std::string detail);
/// Both numbers are sample frames at 44.1 kHz.
ScorchError songTooShort(const std::filesystem::path &path, std::uint64_t decoded,
                         std::uint64_t counted);

/// The text of songUnreadable.
std::string songUnreadableText(const std::filesystem::path &path);

} // namespace scorch
