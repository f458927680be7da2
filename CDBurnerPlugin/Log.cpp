// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/Log.h"

Q_LOGGING_CATEGORY(toolLog, "cdburner")
