// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/TargetError.h"

#include "engine/ScorchString.h"
#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

std::string plainText(ScorchErrorCode code, const std::string &folder, const std::string &reason) {
    switch (code) {
    case ScorchErrorCode::targetMissing:
        return localized("The folder “%@” for the disc image does not exist. Create it, or choose "
                         "another drive.",
                         {folder});
    case ScorchErrorCode::targetNotWritable:
        return localized("The disc image cannot be written to the folder “%@”: it is read-only, or "
                         "you are not allowed to change it. Choose another folder, or change its "
                         "permissions.",
                         {folder});
    case ScorchErrorCode::targetFull:
        return localized("There is not enough space for the disc image in the folder “%@”. Make "
                         "room there, or choose another folder.",
                         {folder});
    default:
        return localized("The disc image could not be written to the folder “%@” (%@). Check the "
                         "device that the folder is on, then try again.",
                         {folder, reason});
    }
}

ScorchErrorCode categoryOf(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return ScorchErrorCode::targetMissing;
    case EACCES:
    case EPERM:
    case EROFS:
        return ScorchErrorCode::targetNotWritable;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ScorchErrorCode::targetFull;
    default:
        return ScorchErrorCode::writeFailed;
    }
}

} // namespace

ScorchError targetError(int error, const std::filesystem::path &folder, const char *step) {
    const ScorchErrorCode category = categoryOf(error);
    const std::string reason = std::generic_category().message(error);
    return {category, plainText(category, readableText(folder.native()), reason),
            std::string(step) + ": " + reason};
}

ScorchError targetFullError(const std::filesystem::path &folder, std::uint64_t needed,
                            std::uint64_t available) {
    const auto size = [](std::uint64_t bytes) {
        return stringWithFilesize(static_cast<std::int64_t>(bytes));
    };
    return {ScorchErrorCode::targetFull,
            localized("The disc image needs %@, but there are only %@ free in the folder “%@”. "
                      "Make room there, or choose another folder.",
                      {size(needed), size(available), readableText(folder.native())}),
            "needed " + std::to_string(needed) + ", free " + std::to_string(available)};
}

} // namespace scorch
