// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/FfmpegBackend.h"

/// The one name that the module exports; see AudioBackendEntry.
extern "C" __attribute__((visibility("default"))) const scorch::AudioBackend *scorchAudioBackend() {
    // Never destroyed: threads of the program may still use it while the process ends.
    static const auto *backend = new scorch::FfmpegBackend;
    return backend;
}
