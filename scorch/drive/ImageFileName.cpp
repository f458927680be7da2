// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageFileName.h"

#include "scorch/support/Utf8.h"

namespace scorch {
namespace {

bool isControl(unsigned char byte) {
    return byte < 0x20 || byte == 0x7F;
}

/// C1 control characters, U+0080 to U+009F, as UTF-8.
bool isHighControl(std::string_view character) {
    return character.size() == 2 && static_cast<unsigned char>(character[0]) == 0xC2 &&
           static_cast<unsigned char>(character[1]) < 0xA0;
}

} // namespace

std::string imageFileStem(std::string_view volumeName, TrackKind kind) {
    const std::string readable = readableText(volumeName);
    std::string_view rest = readable;
    std::string stem;
    while (!rest.empty()) {
        const std::string_view character = rest.substr(0, characterLength(rest));
        rest.remove_prefix(character.size());
        if (character == "/" || isHighControl(character) ||
            isControl(static_cast<unsigned char>(character[0]))) {
            stem += '_';
        } else if (character == "\"" && kind == TrackKind::audio) {
            stem += '\'';
        } else {
            stem += character;
        }
    }
    if (stem.find_first_not_of(' ') == std::string::npos) {
        return "Untitled";
    }
    if (stem.front() == '.') {
        stem.front() = '_';
    }
    return stem;
}

std::string portableFileStem(std::string_view stem) {
    std::string result(stem);
    for (char &character : result) {
        if (std::string_view("\"*:<>?\\|").find(character) != std::string_view::npos) {
            character = '_';
        }
    }
    for (std::size_t at = result.size(); at > 0; --at) {
        char &last = result[at - 1];
        if (last != '.' && last != ' ') {
            break;
        }
        last = '_';
    }
    return result;
}

std::string numberedFileName(std::string_view stem, unsigned number, std::string_view ending,
                             std::size_t maximumBytes) {
    const std::string tail =
        (number < 2 ? std::string() : ' ' + std::to_string(number)) + std::string(ending);
    const std::size_t room = maximumBytes > tail.size() ? maximumBytes - tail.size() : 0;
    return std::string(cutAtCharacter(stem, room)) + tail;
}

} // namespace scorch
