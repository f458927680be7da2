// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A file that a check did not take.
struct RefusedFile {
    std::filesystem::path path;
    std::string reason; ///< For a person, UTF-8, in their language.
};

/// What a check of files refused, by reason. Two keys have a value: "protected-files" (copy
/// protection keeps them from being read) and "incompatible-files" (not what this burner takes).
class AddFilesResult {
public:
    static constexpr std::string_view protectedFilesKey = "protected-files";
    static constexpr std::string_view incompatibleFilesKey = "incompatible-files";

    AddFilesResult() = default;
    AddFilesResult(std::vector<RefusedFile> protectedFiles,
                   std::vector<RefusedFile> incompatibleFiles)
        : protectedFiles_(std::move(protectedFiles)),
          incompatibleFiles_(std::move(incompatibleFiles)) {}

    /// The files under `key`; an empty list for any other key.
    const std::vector<RefusedFile> &valueForKey(std::string_view key) const {
        static const std::vector<RefusedFile> none;
        if (key == protectedFilesKey) {
            return protectedFiles_;
        }
        return key == incompatibleFilesKey ? incompatibleFiles_ : none;
    }

private:
    std::vector<RefusedFile> protectedFiles_;
    std::vector<RefusedFile> incompatibleFiles_;
};
