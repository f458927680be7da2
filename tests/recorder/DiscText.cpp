// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/DiscText.h"

#include "tests/recorder/TextLines.h"

#include <array>
#include <cstdio>
#include <utility>

namespace recorder {

namespace {

constexpr std::array<std::pair<DiscKind, std::string_view>, 5> kKinds = {
    {{DiscKind::CdRom, "cd-rom"},
     {DiscKind::CdR, "cd-r"},
     {DiscKind::CdRw, "cd-rw"},
     {DiscKind::DvdRom, "dvd-rom"},
     {DiscKind::DvdR, "dvd-r"}}};

constexpr std::array<std::pair<SectorForm, std::string_view>, 4> kForms = {
    {{SectorForm::Audio, "audio"},
     {SectorForm::Mode1, "mode-1"},
     {SectorForm::Mode2, "mode-2"},
     {SectorForm::Mode2Form1, "mode-2-form-1"}}};

template <class Table, class Value>
std::string nameOf(const Table &table, Value value) {
    for (const auto &[candidate, name] : table) {
        if (candidate == value) {
            return std::string(name);
        }
    }
    return {};
}

template <class Table, class Value>
bool valueOf(const Table &table, std::string_view name, Value &value) {
    for (const auto &[candidate, candidateName] : table) {
        if (candidateName == name) {
            value = candidate;
            return true;
        }
    }
    return false;
}

std::string number(Lba value) {
    return std::to_string(value);
}

std::string formatMsf(Msf msf) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", msf.minute, msf.second, msf.frame);
    return text.data();
}

bool parseMsf(std::string_view text, Lba &lba) {
    if (text.size() != 8 || text[2] != ':' || text[5] != ':') {
        return false;
    }
    Msf msf;
    if (!parseNumber(text.substr(0, 2), msf.minute) ||
        !parseNumber(text.substr(3, 2), msf.second) || !parseNumber(text.substr(6, 2), msf.frame)) {
        return false;
    }
    lba = toLba(msf);
    return true;
}

std::string formatTrack(const Track &track) {
    std::string line = "track " + number(track.number) + " " + nameOf(kForms, track.form);
    line += " control " + number(track.control) + " pregap " + number(track.pregap);
    line += " start " + number(track.start) + " end " + number(track.end);
    line += " recorded " + number(track.recorded) + " run-out " + number(track.runOut);
    if (!track.isrc.empty()) {
        line += " isrc " + track.isrc;
    }
    for (const Lba index : track.indices) {
        line += " index " + number(index);
    }
    return line + "\n";
}

bool parseTrackProperty(std::string_view key, std::string_view value, Track &track) {
    if (key == "isrc") {
        track.isrc = value;
        return value.size() == 12;
    }
    Lba parsed = 0;
    if (!parseNumber(value, parsed)) {
        return false;
    }
    if (key == "control") {
        track.control = low8(parsed);
        return parsed >= 0 && parsed < 16;
    }
    if (key == "index") {
        track.indices.push_back(parsed);
        return true;
    }
    const std::array<std::pair<std::string_view, Lba *>, 5> numbers = {
        {{"pregap", &track.pregap},
         {"start", &track.start},
         {"end", &track.end},
         {"recorded", &track.recorded},
         {"run-out", &track.runOut}}};
    for (const auto &[name, target] : numbers) {
        if (name == key) {
            *target = parsed;
            return true;
        }
    }
    return false;
}

bool parseTrack(const std::vector<std::string_view> &words, Disc &disc) {
    Track track;
    if (disc.sessions.empty() || words.size() < 3 || words.size() % 2 == 0 ||
        !parseNumber(words[1], track.number) || !valueOf(kForms, words[2], track.form)) {
        return false;
    }
    for (std::size_t at = 3; at < words.size(); at += 2) {
        if (!parseTrackProperty(words[at], words[at + 1], track)) {
            return false;
        }
    }
    disc.sessions.back().tracks.push_back(std::move(track));
    return true;
}

bool parseSession(const std::vector<std::string_view> &words, Disc &disc) {
    Session session;
    if (words.size() == 4 && words[1] == "closed" && words[2] == "lead-out") {
        session.isClosed = true;
        if (!parseNumber(words[3], session.leadOut)) {
            return false;
        }
    } else if (words.size() != 2 || words[1] != "open") {
        return false;
    }
    disc.sessions.push_back(std::move(session));
    return true;
}

bool parsePack(std::string_view digits, Disc &disc) {
    TextPack pack{};
    if (digits.size() != 2 * pack.size()) {
        return false;
    }
    for (std::size_t at = 0; at < pack.size(); ++at) {
        if (!parseHexByte(digits.substr(2 * at, 2), pack[at])) {
            return false;
        }
    }
    disc.textPacks.push_back(pack);
    return true;
}

bool parseStatement(const std::vector<std::string_view> &words, Disc &disc) {
    const std::string_view key = words.front();
    if (key == "track") {
        return parseTrack(words, disc);
    }
    if (key == "session") {
        return parseSession(words, disc);
    }
    if (key == "final") {
        disc.isFinal = true;
        return words.size() == 1;
    }
    if (words.size() != 2) {
        return false;
    }
    if (key == "kind") {
        return valueOf(kKinds, words[1], disc.kind);
    }
    if (key == "lead-in") {
        return parseMsf(words[1], disc.leadInStart);
    }
    if (key == "capacity") {
        return parseNumber(words[1], disc.capacity);
    }
    if (key == "catalog") {
        disc.catalog = words[1];
        return disc.catalog.size() == 13;
    }
    return key == "cd-text" && parsePack(words[1], disc);
}

constexpr std::string_view kTitle = "cd recorder disc";

} // namespace

std::string formatDisc(const Disc &disc) {
    std::string text = std::string(kTitle) + "\nkind " + nameOf(kKinds, disc.kind) + "\n";
    text += "lead-in " + formatMsf(toMsf(disc.leadInStart)) + "\n";
    text += "capacity " + number(disc.capacity) + "\n";
    if (!disc.catalog.empty()) {
        text += "catalog " + disc.catalog + "\n";
    }
    for (const Session &session : disc.sessions) {
        text += session.isClosed ? "session closed lead-out " + number(session.leadOut) + "\n"
                                 : "session open\n";
        for (const Track &track : session.tracks) {
            text += formatTrack(track);
        }
    }
    if (disc.isFinal) {
        text += "final\n";
    }
    for (const TextPack &pack : disc.textPacks) {
        text += "cd-text ";
        for (const Byte byte : pack) {
            appendHexByte(text, byte);
        }
        text += "\n";
    }
    return text;
}

std::optional<Disc> parseDisc(std::string_view text, std::string &error) {
    Disc disc;
    bool isTitled = false;
    for (const TextLine &line : statementsOf(text)) {
        const bool isGood = isTitled ? parseStatement(line.words, disc) : line.text == kTitle;
        if (!isGood) {
            error = "line " + std::to_string(line.number) + ": " + std::string(line.text);
            return {};
        }
        isTitled = true;
    }
    if (!isTitled) {
        error = "empty";
        return {};
    }
    for (const Session &session : disc.sessions) {
        if (session.tracks.empty()) {
            error = "a session without a track";
            return {};
        }
    }
    return disc;
}

} // namespace recorder
