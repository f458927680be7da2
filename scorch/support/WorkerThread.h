// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <thread>

namespace scorch {

/// Starts a thread of the engine under a name of at most 15 characters. It blocks all signals but
/// those that a fault of its own raises: signals belong to the program, and a file that grows past
/// a limit (SIGXFSZ) is then an error of the write instead of the end of the process.
/// `work` must not throw. Throws std::system_error where the system has no thread left.
std::thread startWorkerThread(const char *name, std::function<void()> work);

} // namespace scorch
