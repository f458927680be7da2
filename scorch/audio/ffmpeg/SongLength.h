// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/SourceFailure.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stop_token>

namespace scorch {

class MediaFile;

/// How many samples the song comes to at 44.1 kHz: exactly what decoding it delivers. Where the
/// container's own tables, or its packets, are known to be exact they are counted; any other file
/// is decoded once, without keeping the sound. `file` is used up; `path` is opened anew where the
/// first way leads nowhere.
SourceResult<std::uint64_t> countSamples(std::unique_ptr<MediaFile> file,
                                         const std::filesystem::path &path,
                                         const std::stop_token &stop);

} // namespace scorch
