// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>

/// Handles what comes from AT-SPI until `isSo` holds, which is asked again and again. False, with a
/// test failure that names `what` was waited for, if the deadline passes first.
bool waitUntil(const std::string &what, const std::function<bool()> &isSo);
