// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"

#include <cstdint>
#include <filesystem>

namespace scorch {

/// Why a disc image cannot be written into a folder, for a person, from what the system answered
/// (an errno value). `step` is the system call or file, for the log.
ScorchError targetError(int error, const std::filesystem::path &folder, const char *step);

/// The folder's file system has less room than the image needs. Bytes.
ScorchError targetFullError(const std::filesystem::path &folder, std::uint64_t needed,
                            std::uint64_t available);

} // namespace scorch
