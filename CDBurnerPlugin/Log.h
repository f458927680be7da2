// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLoggingCategory>

/// The tool's diagnostics, in English, under the category "cdburner". Any thread.
Q_DECLARE_LOGGING_CATEGORY(toolLog)
