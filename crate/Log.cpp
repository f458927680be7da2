// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Log.h"

namespace crate {

Q_LOGGING_CATEGORY(log, "crate")
Q_LOGGING_CATEGORY(usageLog, "crate.usage")

} // namespace crate
