// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The walls between the folders of the source tree: which may include which, which outside library
/// belongs to which folder, and that the contract, the engine and the command line know no Qt.
/// Returns one line for each breach ("cli/Foo.cpp: includes scorch/Bar.h"), sorted. `root` is the
/// folder that holds engine/, scorch/, …; folders that are missing are passed over.
std::vector<std::string> layerBreaches(const std::filesystem::path &root);

/// How many sources layerBreaches looks at below the folder `part` of `root`.
std::size_t layerSourceCount(const std::filesystem::path &root, const std::string &part);
