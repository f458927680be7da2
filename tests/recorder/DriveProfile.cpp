// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/DriveProfile.h"

#include "tests/recorder/TextLines.h"

namespace recorder {

namespace {

bool parseSpeeds(const std::vector<std::string_view> &words, DriveProfile &profile) {
    profile.speeds.clear();
    for (std::size_t index = 1; index < words.size(); ++index) {
        int speed = 0;
        if (!parseNumber(words[index], speed) || speed <= 0) {
            return false;
        }
        profile.speeds.push_back(speed);
    }
    return !profile.speeds.empty();
}

bool parseLine(const TextLine &line, DriveProfile &profile) {
    const std::string_view key = line.words.front();
    if (line.words.size() < 2) {
        return false;
    }
    const std::string rest(line.text.substr(line.text.find(line.words[1], key.size())));
    if (key == "vendor") {
        profile.vendor = rest;
        return rest.size() <= 8;
    }
    if (key == "product") {
        profile.product = rest;
        return rest.size() <= 16;
    }
    if (key == "revision") {
        profile.revision = rest;
        return rest.size() <= 4;
    }
    if (key == "serial") {
        profile.serial = rest;
        return rest.size() <= 32;
    }
    if (key == "writes") {
        profile.canWrite = rest == "yes";
        return rest == "yes" || rest == "no";
    }
    if (key == "speeds") {
        return parseSpeeds(line.words, profile);
    }
    return key == "buffer" && parseNumber(rest, profile.bufferKib) && profile.bufferKib > 0;
}

} // namespace

std::optional<DriveProfile> parseDriveProfile(std::string_view text, std::string &error) {
    DriveProfile profile;
    for (const TextLine &line : statementsOf(text)) {
        if (!parseLine(line, profile)) {
            error = "line " + std::to_string(line.number) + ": " + std::string(line.text);
            return {};
        }
    }
    return profile;
}

int kilobytesPerSecond(int multiple) {
    return multiple * 1764 / 10;
}

} // namespace recorder
