// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageDriveOptions.h"

#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

namespace fs = std::filesystem;

constexpr int shortestMinutes = 1;
constexpr int longestMinutes = 99;

/// The drives of a setting, each as its parts between commas, with escapes resolved.
std::vector<std::vector<std::string>> splitSetting(std::string_view setting) {
    std::vector<std::vector<std::string>> drives = {{std::string()}};
    for (std::size_t at = 0; at < setting.size(); ++at) {
        const char character = setting[at];
        const char next = at + 1 < setting.size() ? setting[at + 1] : '\0';
        if (character == '\\' && (next == ':' || next == ',' || next == '\\')) {
            drives.back().back() += next;
            ++at;
        } else if (character == ':') {
            drives.push_back({std::string()});
        } else if (character == ',') {
            drives.back().emplace_back();
        } else {
            drives.back().back() += character;
        }
    }
    return drives;
}

bool takeMinutes(const std::string &value, ImageDriveOptions &options) {
    int minutes = 0;
    const char *const end = value.data() + value.size();
    const auto [rest, error] = std::from_chars(value.data(), end, minutes);
    if (error != std::errc() || rest != end || minutes < shortestMinutes ||
        minutes > longestMinutes) {
        return false;
    }
    options.minutes = minutes;
    return true;
}

bool takeOption(const std::string &option, ImageDriveOptions &options) {
    static constexpr std::string_view minutes = "minutes=";
    if (option == "create") {
        options.create = true;
        return true;
    }
    return option.starts_with(minutes) && takeMinutes(option.substr(minutes.size()), options);
}

fs::path absoluteFolder(const std::string &name) {
    std::error_code error;
    fs::path folder = fs::absolute(name, error);
    if (error) {
        folder = name;
    }
    folder = folder.lexically_normal();
    return folder.has_filename() || !folder.has_relative_path() ? folder : folder.parent_path();
}

std::string lastComponent(const fs::path &folder) {
    return folder.has_filename() ? folder.filename().string() : folder.string();
}

} // namespace

std::vector<ImageDriveOptions> parseImageDriveOptions(std::string_view setting,
                                                      const SettingComplaint &complain) {
    std::vector<ImageDriveOptions> drives;
    for (const std::vector<std::string> &parts : splitSetting(setting)) {
        if (parts.front().empty()) {
            if (parts.size() > 1) {
                complain("an image drive without a folder is left out");
            }
            continue;
        }
        ImageDriveOptions options;
        options.folder = absoluteFolder(parts.front());
        for (std::size_t at = 1; at < parts.size(); ++at) {
            if (!parts[at].empty() && !takeOption(parts[at], options)) {
                complain("the image drive option \"" + readableText(parts[at]) + "\" is ignored");
            }
        }
        const bool known =
            std::any_of(drives.begin(), drives.end(), [&options](const ImageDriveOptions &other) {
                return other.folder == options.folder;
            });
        if (known) {
            complain("the second image drive in \"" + readableText(options.folder.native()) +
                     "\" is left out");
        } else {
            drives.push_back(std::move(options));
        }
    }
    return drives;
}

std::vector<std::string> imageDriveNames(const std::vector<ImageDriveOptions> &drives) {
    std::vector<std::string> lastComponents;
    lastComponents.reserve(drives.size());
    for (const ImageDriveOptions &drive : drives) {
        lastComponents.push_back(readableText(lastComponent(drive.folder)));
    }
    std::vector<std::string> names;
    names.reserve(drives.size());
    for (std::size_t index = 0; index < drives.size(); ++index) {
        const std::string &last = lastComponents[index];
        const bool alike = std::count(lastComponents.begin(), lastComponents.end(), last) > 1;
        const std::string shown = alike ? readableText(drives[index].folder.native()) : last;
        std::string name = localized("Disc image (%@)", {shown});
        // Folders that differ only in bytes that are no text look the same all the same.
        for (int number = 2; std::count(names.begin(), names.end(), name) > 0; ++number) {
            name = localized("Disc image (%@)", {shown + ' ' + std::to_string(number)});
        }
        names.push_back(std::move(name));
    }
    return names;
}

} // namespace scorch
