// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Device.h"

#include <optional>

/// The life of a recording. It begins with its first block, is continued block by block in order,
/// and is ended or broken off. What is meant only as a test (mode page 05) leaves no trace.
namespace recorder {

/// Takes blocks of the recording that is under way, or begins one as the mode page and the cue
/// sheet say. Nothing if they were written; else the sense, and the recording may be broken off.
std::optional<Sense> writeBlocks(Device &device, Lba first, std::size_t count, ByteView sent);

/// The host has no more for now: a track at once ends, a complete session at once is closed. A
/// session of which blocks are missing stays as it is: nothing can be added in another way.
void endRecording(Device &device);

/// The recording will not be continued: what was written of a track at once becomes a track, a
/// session at once keeps its table of contents, damaged tracks and no lead-out. Forgets a cue sheet
/// that was not used.
void breakOff(Device &device);

/// Writes lead-in and lead-out of the open session, if there is one.
std::optional<Sense> closeSession(Device &device);

} // namespace recorder
