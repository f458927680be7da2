// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/OpticalRecording.h"

namespace scorch {

/// Recordings on optical drives through libburn. The factory, and each copy of it, share one thread
/// that makes all calls of that library. It is started by the first recording and joined when the
/// last copy and the last recording are gone. The factory may be called on any thread; recordings
/// on several drives may run at once.
OpticalRecordingFactory libburnRecordingFactory();

} // namespace scorch
