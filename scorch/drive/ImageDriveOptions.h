// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace scorch {

/// What one image drive is to be.
struct ImageDriveOptions {
    std::filesystem::path folder; ///< Absolute.
    int minutes = 80;             ///< Of its blank discs, 1 to 99.
    bool create = false;          ///< Make the folder at the first burn if it is missing.

    bool operator==(const ImageDriveOptions &) const = default;
};

/// Told, in English, of what a setting holds that is of no use.
using SettingComplaint = std::function<void(const std::string &)>;

/// Reads "DIR[,minutes=N][,create]", several separated by ":". In a folder's name "\:", "\," and
/// "\\" stand for the character alone. A relative folder counts from the current one. What cannot
/// be understood, and a folder that is named twice, is left out with a complaint.
std::vector<ImageDriveOptions> parseImageDriveOptions(std::string_view setting,
                                                      const SettingComplaint &complain);

/// The drives' names for people, in the same order: "Disc image (FOLDER)" with the last component
/// of the folder, with its whole path where two are alike.
std::vector<std::string> imageDriveNames(const std::vector<ImageDriveOptions> &drives);

/// Sectors of a blank disc of that many minutes: what is left of the 75 a second when the lead-out
/// has its place. The common disc of 80 minutes has 359 849.
constexpr std::int64_t blankDiscSectors(int minutes) {
    return std::int64_t{minutes} * 60 * 75 - 151;
}

} // namespace scorch
