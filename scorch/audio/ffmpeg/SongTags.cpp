// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ffmpeg/SongTags.h"

#include "scorch/audio/ffmpeg/MediaFile.h"
#include "scorch/audio/ffmpeg/TagText.h"

#include <array>
#include <initializer_list>

namespace scorch {
namespace {

/// The first of `keys` that says anything. Ogg keeps tags at the stream, most others at the file.
std::string tag(MediaFile &file, std::initializer_list<const char *> keys) {
    const std::array<const AVDictionary *, 2> places = {file.format().metadata,
                                                        file.stream().metadata};
    for (const char *key : keys) {
        for (const AVDictionary *place : places) {
            const AVDictionaryEntry *entry = av_dict_get(place, key, nullptr, 0);
            if (entry != nullptr && *entry->value != '\0') {
                return tagText(entry->value);
            }
        }
    }
    return {};
}

} // namespace

AudioInfo readTags(MediaFile &file) {
    AudioInfo info;
    info.artist = tag(file, {"artist", "album_artist", "performer"});
    info.title = tag(file, {"title"});
    info.album = tag(file, {"album"});
    return info;
}

} // namespace scorch
