// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

class QWidget;

/// Runs the event loop until the condition holds; false if that takes more than ten seconds.
bool runUntil(const std::function<bool()> &condition);

/// Runs the event loop until everything that was handed to the main queue before has run, and what
/// was to be deleted later is gone.
void drainMainQueue();

/// Shows a window and makes it the active one; a failure of the test if that does not happen.
void showActive(QWidget &window);
