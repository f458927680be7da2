// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/CueSheet.h"

#include <cstddef>
#include <cstdint>

namespace scorch {
namespace {

std::string twoDigits(std::int64_t value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

/// Minutes, seconds and frames (75 a second) of a position in the file.
std::string position(std::int64_t sectors) {
    return twoDigits(sectors / 75 / 60) + ':' + twoDigits(sectors / 75 % 60) + ':' +
           twoDigits(sectors % 75);
}

std::string quoted(const std::string &text) {
    std::string result = "\"";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '"') {
            result += '\'';
        } else {
            result += byte < 0x20 || byte == 0x7F ? ' ' : character;
        }
    }
    return result += '"';
}

void addText(std::string &sheet, const std::string &indent, const char *keyword,
             const std::string &text) {
    if (!text.empty()) {
        sheet += indent + keyword + ' ' + quoted(text) + '\n';
    }
}

} // namespace

std::string cueSheet(const std::string &discTitle, const std::string &binaryName,
                     const std::vector<TrackLayout> &tracks) {
    std::string sheet;
    addText(sheet, "", "TITLE", discTitle);
    sheet += "FILE \"" + binaryName + "\" BINARY\n";
    std::int64_t start = 0;
    for (std::size_t index = 0; index < tracks.size(); ++index) {
        const TrackLayout &track = tracks[index];
        sheet += "  TRACK " + twoDigits(static_cast<std::int64_t>(index) + 1) + " AUDIO\n";
        addText(sheet, "    ", "TITLE", track.title);
        addText(sheet, "    ", "PERFORMER", track.performer);
        sheet += "    INDEX 01 " + position(start) + '\n';
        start += track.sectors;
    }
    return sheet;
}

} // namespace scorch
