// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/Result.h"

#include <string>

namespace scorch {

/// Why a file cannot be played, as the code that reads it tells. A check makes a refusal of it, a
/// burn an error.
struct SourceFailure {
    enum class Kind {
        cancelled,
        missing,       ///< No such file.
        unreadable,    ///< The system refused, or failed to read.
        protectedFile, ///< Encrypted for somebody's player.
        notSound,      ///< Nothing in it that we can decode.
        damaged,       ///< Sound, but broken or cut off.
    };

    Kind kind = Kind::notSound;
    std::string reason; ///< For a person, localized, a sentence about "it", the file.
    std::string detail; ///< For the log.
};

template <class T>
using SourceResult = Result<T, SourceFailure>;

} // namespace scorch
