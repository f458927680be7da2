// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/ExitCode.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

class ScorcherDevice;

namespace cli {

/// Why no drive can be used, and how the program ends for it.
struct DriveProblem {
    std::string text;
    ExitCode exitCode = ExitCode::failed;
};

/// Which of the drives may be meant.
enum class DriveKind { any, imageDrive };

/// The drive to burn with: the one of that name, or the only one of that kind if `wanted` is empty.
std::variant<DriveProblem, std::string> chooseDrive(const std::vector<std::string> &drives,
                                                    const std::string &wanted,
                                                    DriveKind kind = DriveKind::any);

/// The name of the drive that somebody named: by that name, or by its device node or folder, links
/// to it included. What is neither stays as it is.
std::string driveNamed(const std::vector<std::string> &drives, const std::string &wanted);

/// Why the disc in the drive cannot be burned, for a person; nothing if it can. Not to be asked
/// while the drive examines the disc.
std::optional<std::string> discProblem(const ScorcherDevice &device);

/// What is in the drive, in words: "blank CD-R, 79:57 or 737.0 MB free"; or what the problem with
/// the drive is.
std::string discText(const ScorcherDevice &device);

/// The same as one word: unusable, checking, none, other, written or blank.
std::string discWord(const ScorcherDevice &device);

/// What the drive is, in words: "written at 52x 32x, EXAMPLE CD-RW, firmware 1.00, /dev/sr0". Empty
/// for a drive that is no device.
std::string driveText(const ScorcherDevice &device);

} // namespace cli
