// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/MmcError.h"

#include <system_error>

namespace scorch {

std::string MmcError::detail() const {
    std::string text = command + ": ";
    if (kind == Kind::sense) {
        return text + "sense " + senseText(sense);
    }
    if (kind == Kind::timedOut) {
        return text + "no answer";
    }
    if (kind == Kind::interrupted) {
        return text + "interrupted";
    }
    return text + std::generic_category().message(systemError);
}

} // namespace scorch
