// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace scorch {

/// Turns the library's log away from standard error: what it says of an error is kept, per thread,
/// for the detail of our own. Once per process; any thread.
void captureAvLog();

/// What the library said last on this thread since the last call, and the text of `code` (one of
/// its negative codes, or 0 for none).
std::string takeAvDetail(int code);

} // namespace scorch
