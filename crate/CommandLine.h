// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace crate {

/// What a user asks of the program when it starts. Paths are absolute and keep the bytes that the
/// user's shell passed.
struct CommandLine {
    enum class Action { run, showHelp, showVersion };

    Action action = Action::run;
    std::optional<std::filesystem::path> musicFolder;
    /// Passed on to the tools as it stands.
    std::optional<QByteArray> imageDrive;
    std::optional<QString> toolName;
    std::optional<std::filesystem::path> usageLog;
    std::vector<std::filesystem::path> files;
};

/// Why arguments make no sense, for a person.
struct UsageError {
    std::string message;
};

/// `arguments` are the program's without its own name. Options may stand anywhere, with their value
/// behind a space or "="; the last one of a kind counts; everything behind "--" is a file.
std::variant<CommandLine, UsageError> parseCommandLine(std::span<const char *const> arguments);

/// What --help prints.
std::string helpText();

} // namespace crate
