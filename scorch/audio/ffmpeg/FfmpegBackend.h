// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/AudioBackend.h"

namespace scorch {

/// The backend over FFmpeg's libraries.
class FfmpegBackend final : public AudioBackend {
public:
    AudioProbe probe(const std::filesystem::path &path, const std::stop_token &stop) const override;
    std::unique_ptr<AudioFeeder> makeFeeder(std::vector<AudioTrackRequest> tracks,
                                            unsigned workers) const override;
};

} // namespace scorch
