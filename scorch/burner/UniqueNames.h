// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace scorch {

/// The names in the root of a disc: each once. Names are bytes. One thread.
class UniqueNames {
public:
    /// `name`, or "name (2).ext", "name (3).ext" … where it is taken already; for folders, names
    /// without an ending and hidden ones (".bashrc") the number stands at the end. The answer is
    /// taken from then on. At most 255 bytes: a longer stem is cut at a character.
    std::string claim(const std::string &name, bool isFolder);

    void release(const std::string &name);
    void clear();

private:
    std::unordered_set<std::string> taken_;
    /// The number to try first, by the name that was asked for: many files of one name in a row
    /// must not look through all that came before.
    std::unordered_map<std::string, std::size_t> nextNumber_;
};

} // namespace scorch
