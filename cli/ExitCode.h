// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace cli {

/// How the program ends. Scripts rely on the numbers: never renumber.
enum class ExitCode : int {
    done = 0,
    failed = 1,
    usage = 2,
    doesNotFit = 3, ///< Too long, too big, or more than 99 tracks.
    nothingToBurn = 4,
    cancelled = 130, ///< As shells report a program that Ctrl-C ended.
};

} // namespace cli
