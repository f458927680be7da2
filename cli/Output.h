// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace cli {

/// One of the two standard outputs, written at once and without a buffer, so that a line is where
/// it belongs however the program ends. Main thread only.
class Output {
public:
    /// Does not own the descriptor.
    explicit Output(int descriptor);

    /// Writes all of the text. A reader that has gone does not end a burn: what cannot be written
    /// is dropped, and failed() is true from then on.
    void write(std::string_view text);

    bool failed() const { return failed_; }

    /// Whether lines can be rewritten in place: a terminal that is not a dumb one.
    bool isTerminal() const { return terminal_; }

    /// The width of the terminal at this moment, at least 20; 80 where it does not tell.
    std::size_t columns() const;

private:
    int descriptor_;
    bool terminal_;
    bool failed_ = false;
};

} // namespace cli
