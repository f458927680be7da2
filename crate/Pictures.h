// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>

namespace crate {

/// A picture of the host's own, for 1x and 2x screens: "crate", "no_songs" or "broken_tool".
QIcon picture(const char *name);

} // namespace crate
