// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Keeps what a recording reports, as words.
class RecordLog final : public scorch::RecordObserver {
public:
    std::vector<std::string> words;
    std::int64_t sectors = 0;
    /// Called with each word, behind the entry.
    std::function<void(const std::string &)> onWord;

    void openingTrack(std::size_t track, std::size_t count) override {
        note("open " + place(track, count));
    }
    void writingTrack(std::size_t track, std::size_t count) override {
        note("write " + place(track, count));
    }
    void closedTrack(std::size_t track, std::size_t count) override {
        note("close " + place(track, count));
    }
    void closedSession() override { note("session"); }
    void finishing() override { note("finishing"); }
    void wroteSectors(std::int64_t count) override { sectors = count; }

private:
    static std::string place(std::size_t track, std::size_t count) {
        return std::to_string(track) + '/' + std::to_string(count);
    }
    void note(const std::string &word) {
        words.push_back(word);
        if (onWord) {
            onWord(word);
        }
    }
};
