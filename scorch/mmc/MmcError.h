// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/Sense.h"

#include <string>

namespace scorch {

/// Why a command to a drive failed.
struct MmcError {
    enum class Kind {
        sense,        ///< The drive refused or failed; `sense` says why.
        noPermission, ///< The device node may not be opened by this user.
        busy,         ///< Another program holds the drive exclusively.
        gone,         ///< There is no such drive (any more).
        timedOut,     ///< The drive does not answer.
        interrupted,  ///< Whoever asked has asked to stop.
        other,        ///< The system failed otherwise; `systemError` says how.
    };

    Kind kind = Kind::other;
    Sense sense;         ///< Kind::sense only.
    int systemError = 0; ///< An errno value, 0 where there is none.
    std::string command; ///< What was tried, in MMC's words: "READ DISC INFORMATION".

    /// For the log: command, sense triple or system's text.
    std::string detail() const;
};

} // namespace scorch
