// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/Faults.h"

#include "tests/recorder/TextLines.h"

#include <array>
#include <utility>

namespace recorder {

namespace {

using Words = std::vector<std::string_view>;

std::string restOf(const TextLine &line) {
    const std::string_view key = line.words.front();
    return std::string(line.text.substr(line.text.find(line.words[1], key.size())));
}

bool parseFlag(std::string_view key, Faults &faults) {
    const std::array<std::pair<std::string_view, bool *>, 7> flags = {
        {{"power-calibration", &faults.powerCalibration},
         {"refuse-cd-text", &faults.refuseCdText},
         {"vanished", &faults.vanished},
         {"no-device", &faults.noDevice},
         {"busy", &faults.busy},
         {"no-permission", &faults.noPermission},
         {"jammed", &faults.jammed}}};
    for (const auto &[name, flag] : flags) {
        if (name == key) {
            *flag = true;
            return true;
        }
    }
    return false;
}

template <class Number>
bool parseInto(std::string_view word, std::optional<Number> &target) {
    Number value = 0;
    if (!parseNumber(word, value)) {
        return false;
    }
    target = value;
    return true;
}

bool parseValue(std::string_view key, std::string_view value, Faults &faults) {
    const std::array<std::pair<std::string_view, std::optional<Lba> *>, 4> optionals = {
        {{"write-error", &faults.writeError},
         {"loss-of-streaming", &faults.lossOfStreaming},
         {"read-error", &faults.readError},
         {"silent", &faults.silentMs}}};
    for (const auto &[name, target] : optionals) {
        if (name == key) {
            return parseInto(value, *target);
        }
    }
    if (key == "read-offset") {
        return parseNumber(value, faults.readOffset);
    }
    if (key == "slow") {
        return parseNumber(value, faults.sectorsPerSecond) && faults.sectorsPerSecond > 0;
    }
    if (key == "becoming-ready") {
        return parseNumber(value, faults.becomingReady);
    }
    return key == "long-operation" && parseNumber(value, faults.longOperation);
}

bool parseLine(const TextLine &line, Faults &faults) {
    const Words &words = line.words;
    if (words.size() == 1) {
        return parseFlag(words[0], faults);
    }
    if (words[0] == "disc") {
        faults.disc = restOf(line);
        return true;
    }
    if (words[0] == "tray") {
        faults.tray = restOf(line);
        return words[1] == "open" || words[1] == "closed";
    }
    if (words.size() == 3 && words[0] == "flip") {
        return parseInto(words[1], faults.flipBlock) && parseNumber(words[2], faults.flipByte) &&
               faults.flipByte >= 0;
    }
    return words.size() == 2 && parseValue(words[0], words[1], faults);
}

} // namespace

std::optional<Faults> parseFaults(std::string_view text, std::string &error) {
    Faults faults;
    for (const TextLine &line : statementsOf(text)) {
        if (!parseLine(line, faults)) {
            error = "line " + std::to_string(line.number) + ": " + std::string(line.text);
            return {};
        }
    }
    return faults;
}

} // namespace recorder
