// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>

/// For programs whose tests wait more than they work, as drives make them: the program starts
/// itself several times at once, and each process runs a share of the tests. Tests must not disturb
/// each other. With arguments there is one process, so that single tests can be asked for.

/// Whether this process is to run its tests.
bool isShard();
/// Runs all shards; the exit status for main. `prepare`, if any, is called before each start, to
/// put something into the environment.
int runShards(int count, char **arguments, int shards, const std::function<void()> &prepare = {});
