// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/FfmpegBackend.h"

#include "scorch/audio/ReadAheadFeeder.h"
#include "scorch/audio/ffmpeg/DecodedSong.h"
#include "scorch/audio/ffmpeg/MediaFile.h"
#include "scorch/audio/ffmpeg/SongLength.h"
#include "scorch/audio/ffmpeg/SongTags.h"
#include "scorch/support/Text.h"

#include <exception>
#include <utility>

namespace scorch {
namespace {

AudioProbe refusalOf(SourceFailure failure) {
    switch (failure.kind) {
    case SourceFailure::Kind::cancelled:
        return Cancelled{};
    case SourceFailure::Kind::protectedFile:
        return AudioRefusal{RefusalKind::protectedFile, std::move(failure.reason)};
    default:
        return AudioRefusal{RefusalKind::incompatibleFile, std::move(failure.reason)};
    }
}

AudioProbe look(const std::filesystem::path &path, const std::stop_token &stop) {
    SourceResult<std::unique_ptr<MediaFile>> file = MediaFile::open(path, stop);
    if (!file) {
        return refusalOf(file.error());
    }
    AudioInfo info = readTags(**file);
    SourceResult<std::uint64_t> samples = countSamples(std::move(*file), path, stop);
    if (!samples) {
        return refusalOf(samples.error());
    }
    if (*samples == 0) {
        return AudioRefusal{RefusalKind::incompatibleFile, localized("There is no sound in it.")};
    }
    info.samples = *samples;
    return info;
}

} // namespace

AudioProbe FfmpegBackend::probe(const std::filesystem::path &path,
                                const std::stop_token &stop) const {
    try {
        return look(path, stop);
    } catch (const std::exception &exception) {
        return AudioRefusal{RefusalKind::incompatibleFile,
                            localized("It cannot be read (%@).", {exception.what()})};
    }
}

std::unique_ptr<AudioFeeder> FfmpegBackend::makeFeeder(std::vector<AudioTrackRequest> tracks,
                                                       unsigned workers) const {
    return std::make_unique<ReadAheadFeeder>(std::move(tracks), workers, DecodedSong::open);
}

} // namespace scorch
