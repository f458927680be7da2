// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace cli {

enum class DiscKind { audio, data };

/// A folder that stands in for a drive.
struct ImageDriveOption {
    std::string folder; ///< As typed: bytes.
    std::optional<int> minutes;
    bool create = false; ///< Make the folder if it is not there.
};

struct HelpRequest {};
struct VersionRequest {};

/// `scorch drives`
struct DrivesRequest {
    std::optional<ImageDriveOption> imageDrive;
    bool json = false;
};

/// `scorch burn`
struct BurnRequest {
    DiscKind kind = DiscKind::audio;
    std::string name = "Untitled"; ///< UTF-8.
    std::string drive;             ///< Empty: the only one there is.
    std::optional<ImageDriveOption> imageDrive;
    bool verify = true;
    bool json = false;
    std::vector<std::filesystem::path> files;
};

/// What is wrong with the arguments, for a person.
struct UsageError {
    std::string text;
};

using CommandLine =
    std::variant<UsageError, HelpRequest, VersionRequest, DrivesRequest, BurnRequest>;

/// Reads the arguments (without the program's name). Options may stand anywhere up to "--", values
/// in the next argument or behind "=". Changes nothing outside.
CommandLine parseCommandLine(const std::vector<std::string> &arguments);

/// The folder as the engine reads it from its environment, "\", ":" and "," in its path escaped.
std::string imageDriveSetting(const ImageDriveOption &option);

/// What --help prints.
std::string helpText();

} // namespace cli
