// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/SongErrors.h"

#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <utility>

namespace scorch {
namespace {

std::string nameOf(const std::filesystem::path &path) {
    return readableText(path.filename().native());
}

} // namespace

std::string songUnreadableText(const std::filesystem::path &path) {
    return localized("“%@” cannot be read to its end: the file is damaged, or the disk it lies "
                     "on is. Take it off the list, or put a good copy in its place and add it "
                     "again.",
                     {nameOf(path)});
}

ScorchError songMissing(const std::filesystem::path &path, std::string detail) {
    return {ScorchErrorCode::sourceMissing,
            localized("“%@” is no longer where it was. Put it back, or take it off the list.",
                      {nameOf(path)}),
            std::move(detail)};
}

ScorchError songUnreadable(const std::filesystem::path &path, std::string detail) {
    return {ScorchErrorCode::sourceUnreadable, songUnreadableText(path), std::move(detail)};
}

ScorchError songChanged(const std::filesystem::path &path, std::string detail) {
    return {ScorchErrorCode::sourceChanged,
            localized("“%@” is not the file it was when it was added. Take it off the list and "
                      "add it again.",
                      {nameOf(path)}),
            std::move(detail)};
}

ScorchError songTooShort(const std::filesystem::path &path, std::uint64_t decoded,
                         std::uint64_t counted) {
    return {ScorchErrorCode::sourceTooShort,
            localized("“%@” is shorter than it was when it was added: it has been cut or "
                      "damaged. Take it off the list, or put a good copy in its place and add it "
                      "again.",
                      {nameOf(path)}),
            std::to_string(decoded) + " of " + std::to_string(counted) + " samples"};
}

} // namespace scorch
