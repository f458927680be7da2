// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/BurnErrors.h"

#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace scorch {

ScorchError noDriveError(const std::string &name) {
    if (name.empty()) {
        return {ScorchErrorCode::noDrive,
                localized("There is no drive to burn with. Connect a CD burner, or choose one.")};
    }
    return {ScorchErrorCode::noDrive,
            localized("The drive “%@” is not connected any more. Connect it again, or choose "
                      "another one.",
                      {name})};
}

ScorchError burnerCheckingError() {
    return {ScorchErrorCode::burnerBusy,
            localized("Files are still being added to the list. Wait until they have been "
                      "checked, then burn.")};
}

ScorchError burnerBurningError() {
    return {ScorchErrorCode::burnerBusy,
            localized("The list is being burned already. Wait until that disc is finished.")};
}

ScorchError finishedBeforeStopError() {
    return {ScorchErrorCode::finishedBeforeStop,
            localized("The disc was complete before the burn could be stopped. It can be used.")};
}

ScorchError internalError(const std::string &detail) {
    return {ScorchErrorCode::internal,
            localized("Something unexpected went wrong (%@). Try again; if it happens again, "
                      "please report it.",
                      {detail}),
            detail};
}

ScorchError sourceError(const std::filesystem::path &path, int error) {
    const std::string name = readableText(path.native());
    const std::string reason = std::generic_category().message(error);
    if (error == ENOENT || error == ENOTDIR) {
        return {ScorchErrorCode::sourceMissing,
                localized("“%@” is not there any more. Put it back, or remove it from the list, "
                          "then try again.",
                          {name}),
                reason};
    }
    return {ScorchErrorCode::sourceUnreadable,
            localized("“%@” cannot be read (%@). Check the file and its permissions, or remove it "
                      "from the list, then try again.",
                      {name, reason}),
            reason};
}

ScorchError differenceError(TrackKind kind, std::size_t track, std::int64_t sector,
                            const std::string &name) {
    const std::string detail =
        "track " + std::to_string(track + 1) + ", sector " + std::to_string(sector);
    if (kind == TrackKind::audio) {
        return {ScorchErrorCode::verifyFailed,
                localized("Track %@, “%@”, is not on the disc as it was sent. Do not rely on this "
                          "disc: burn the list again on another one.",
                          {std::to_string(track + 1), name}),
                detail};
    }
    if (name.empty()) {
        return {ScorchErrorCode::verifyFailed,
                localized("The table of contents of the disc is not as it was sent. Do not rely on "
                          "this disc: burn the list again on another one."),
                detail};
    }
    return {ScorchErrorCode::verifyFailed,
            localized("“%@” is not on the disc as it was sent. Do not rely on this disc: burn the "
                      "list again on another one.",
                      {name}),
            detail};
}

} // namespace scorch
