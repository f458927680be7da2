// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

namespace scorch {

/// Hands a task over to the main thread, where it runs later, after all that were handed over
/// before. Any thread; never runs the task inline.
using PostTask = std::function<void(std::function<void()>)>;

} // namespace scorch
