// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/ToolLoader.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace crate {

/// The tools of this host, by their place in the list that was loaded. Owns them. Main thread.
///
/// Every operation that takes an index is to be called with that of a loaded tool; for another one
/// it does nothing and says so where it can.
class Utilities {
public:
    explicit Utilities(std::vector<ToolEntry> entries);
    ~Utilities();
    Utilities(const Utilities &) = delete;
    Utilities &operator=(const Utilities &) = delete;

    const std::vector<ToolEntry> &entries() const { return entries_; }

    /// The loaded tool of this name, in upper or lower case.
    std::optional<std::size_t> find(const QString &toolName) const;
    /// The tool that files without a named tool go to.
    std::optional<std::size_t> firstLoaded() const;

    /// Starts the tool if it is not started and brings its window to the front.
    void open(std::size_t index);
    /// The same, then passes the files. False when the tool would not take them.
    bool openWith(std::size_t index, const SongList &files);

    /// Closes the window of each started tool, as its user would: a tool may ask its user. False,
    /// and the remaining ones are left alone, as soon as one stays open. False also while an
    /// earlier call still waits for an answer.
    bool closeAll();
    /// Stops every tool without asking.
    void shutdownAll();

private:
    VXUtilitiesTool *toolAt(std::size_t index) const;

    std::vector<ToolEntry> entries_;
    bool isClosing_ = false;
};

} // namespace crate
