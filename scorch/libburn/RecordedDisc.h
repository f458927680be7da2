// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/SessionPlan.h"
#include "scorch/mmc/MediumState.h"

#include <optional>
#include <string>

namespace scorch {

/// What of a disc, as the drive tells it after a recording, is not as it was planned: still blank,
/// not closed, tracks that are missing, of another kind or at another place. For the log; nothing
/// where all is as it should be.
std::optional<std::string> differenceFromPlan(const MediumState &medium, const SessionPlan &plan);

} // namespace scorch
