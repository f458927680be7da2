// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

/// Runs the event loop until the condition holds; false if that takes more than ten seconds.
bool runUntil(const std::function<bool()> &condition);

/// Runs the event loop until everything that was handed to the main queue before has run, and what
/// was to be deleted later is gone.
void drainMainQueue();
