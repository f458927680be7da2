// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLoggingCategory>

namespace crate {

/// "crate": what went wrong in the host.
Q_DECLARE_LOGGING_CATEGORY(log)
/// "crate.usage": what tools report about their use.
Q_DECLARE_LOGGING_CATEGORY(usageLog)

} // namespace crate
