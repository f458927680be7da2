// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/TemporaryImageFile.h"
#include "scorch/support/DiscContent.h"

#include <string>
#include <vector>

namespace scorch {

/// Gives complete temporary files their names. The first number is taken whose names are all free;
/// nothing is ever overwritten. Where this fails, no file of the image has a final name once the
/// temporary files are destroyed. Blocks.

/// "STEM.iso". The file has been flushed.
Result<void> commitDataImage(const TargetFolder &folder, TemporaryImageFile &image,
                             const std::string &stem);

/// "STEM.bin" and "STEM.cue", which names it. The sound has been flushed; the sheet is written
/// here.
Result<void> commitAudioImage(const TargetFolder &folder, TemporaryImageFile &sound,
                              TemporaryImageFile &sheet, const std::string &stem,
                              const std::string &discTitle, const std::vector<TrackLayout> &tracks);

} // namespace scorch
