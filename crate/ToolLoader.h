// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/VXUtilitiesTool.h"

#include <QString>

#include <filesystem>
#include <memory>
#include <vector>

namespace crate {

/// What became of one library of the tool folder.
enum class ToolState {
    loaded,
    notAPlugin,     ///< No library, or one without a plug-in's metadata.
    otherInterface, ///< A plug-in for another program.
    otherProtocol,  ///< A tool for another version of this one.
    badMetadata,    ///< No id or no version.
    duplicate,      ///< Another tool has the same id.
    notLoadable,    ///< The system refuses to load its code.
    badRootObject,  ///< Its code is not what its metadata says.
};

/// A library of the tool folder. `tool` is set exactly when it is loaded.
struct ToolEntry {
    std::filesystem::path file;
    QString id; ///< Empty where the metadata has none.
    QString version;
    ToolState state = ToolState::notAPlugin;
    QString error; ///< For a person; empty when loaded.
    std::unique_ptr<VXUtilitiesTool> tool;
};

/// The folder that belongs to the program in `programFolder`: ../lib/crate/tools.
std::filesystem::path toolFolderFor(const std::filesystem::path &programFolder);

/// Loads every library in `folder` (not in folders below it), in the order of their names. A
/// library's metadata is read and checked before any of its code runs, so that a tool for another
/// program or version is never loaded. What is loaded stays so until the process ends, because
/// threads of libraries may outlive a tool. A folder that does not exist has no tools. `context`
/// must outlive the tools. Main thread.
std::vector<ToolEntry> loadTools(const std::filesystem::path &folder,
                                 VXUtilitiesToolContext *context);

} // namespace crate
