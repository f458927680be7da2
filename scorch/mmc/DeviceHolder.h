// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>

namespace scorch {

/// Who stands between a user and a device node. Any thread; each looks into /proc or the user
/// database, and may block for it.

/// The other program that has this file open, as "name (process id)": one that has it open for
/// writing before others, the first that the system lets us see. Empty where there is none to be
/// seen.
std::string holderOf(const std::filesystem::path &node);

/// The same, but only a program that has it open for writing. On a drive that is one which burns:
/// players and mounts only read.
std::string writerOf(const std::filesystem::path &node);

/// The name of the group that the file belongs to; its number where it has no name, empty where
/// there is no such file.
std::string groupOf(const std::filesystem::path &node);

} // namespace scorch
