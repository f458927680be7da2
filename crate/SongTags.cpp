// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongTags.h"

#include <taglib/audioproperties.h>
#include <taglib/fileref.h>
#include <taglib/infotag.h>
#include <taglib/tag.h>
#include <taglib/tpropertymap.h>
#include <taglib/wavfile.h>

#include <algorithm>
#include <array>
#include <exception>

namespace crate {

namespace {

constexpr std::array<std::string_view, 26> songEndings{
    "aac", "aif", "aifc", "aiff", "ape", "asf",  "dsf", "flac", "m4a", "m4b",  "m4r", "mp2", "mp3",
    "mp4", "mpc", "mpp",  "oga",  "ogg", "opus", "spx", "tta",  "wav", "wave", "wma", "wv",  "3gp"};

constexpr std::size_t longestEnding = 4;

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// One line, without the blanks and line ends that some programs leave around a tag.
QString textOf(const TagLib::String &tag) {
    return QString::fromUtf8(tag.toCString(true)).simplified();
}

/// The first number of "2" or "2/3".
int numberOf(const TagLib::PropertyMap &properties, const char *key) {
    const auto found = properties.find(key);
    const bool isThere = found != properties.end() && !found->second.isEmpty();
    return isThere ? std::max(0, found->second.front().toInt()) : 0;
}

/// The tag that says something: a WAV file may have two, of which FileRef knows one.
const TagLib::Tag *tagOf(const TagLib::FileRef &file) {
    const auto *wave = dynamic_cast<const TagLib::RIFF::WAV::File *>(file.file());
    const bool hasOther = wave != nullptr && wave->InfoTag() != nullptr;
    return hasOther && (file.tag() == nullptr || file.tag()->isEmpty()) ? wave->InfoTag()
                                                                        : file.tag();
}

void readTags(LibrarySong &song, const TagLib::FileRef &file) {
    const TagLib::Tag *tag = tagOf(file);
    if (tag != nullptr) {
        song.title = textOf(tag->title());
        song.artist = textOf(tag->artist());
        song.album = textOf(tag->album());
        song.track = static_cast<int>(std::min(tag->track(), 99'999U));
    }
    song.disc = numberOf(file.file()->properties(), "DISCNUMBER");
    const TagLib::AudioProperties *sound = file.audioProperties();
    if (sound != nullptr && sound->lengthInMilliseconds() > 0) {
        song.length = std::chrono::milliseconds(sound->lengthInMilliseconds());
    }
}

} // namespace

bool isSongName(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || name.size() - dot - 1 > longestEnding) {
        return false;
    }
    std::string ending(name.substr(dot + 1));
    std::transform(ending.begin(), ending.end(), ending.begin(), lowerCase);
    return std::find(songEndings.begin(), songEndings.end(), ending) != songEndings.end();
}

LibrarySong readSong(const QByteArray &path) {
    LibrarySong song;
    song.path = path;
    try {
        const TagLib::FileRef file(path.constData(), true, TagLib::AudioProperties::Fast);
        if (!file.isNull()) {
            readTags(song, file);
        }
    } catch (const std::exception &) {
        // A damaged file may promise more than memory holds; the song is then listed by its name.
        LibrarySong bare;
        bare.path = path;
        return bare;
    }
    return song;
}

} // namespace crate
