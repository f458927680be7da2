// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/AddFilesResult.h"

#include <QString>

#include <vector>

/// A list of refused files for the log: "(", then a line of path and reason for each, then ")".
/// Bytes of a path that are not valid UTF-8 and control characters show as "\xNN", so that each
/// file keeps to its line and can be told apart.
QString refusedFilesText(const std::vector<RefusedFile> &files);
