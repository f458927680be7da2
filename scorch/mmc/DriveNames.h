// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/DeviceWatcher.h"

#include <set>
#include <string>

namespace scorch {

/// What a drive is called: its maker and model, "ASUS DRW-24D5MT", or "CD drive" where it tells
/// neither. One whose name is in use already gets its node behind it: "ASUS DRW-24D5MT (sr1)".
std::string driveName(const FoundDevice &device, const std::set<std::string> &inUse);

} // namespace scorch
