// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/DiscError.h"

#include "engine/ScorchString.h"
#include "scorch/support/Text.h"

namespace scorch {

std::optional<ScorchError> discError(const std::string &driveName, const DriveState &state) {
    if (!state.canWriteCd) {
        return ScorchError(
            ScorchErrorCode::discNotSuitable,
            localized("The drive “%@” cannot write CDs. Choose another one.", {driveName}));
    }
    if (!state.disc.present) {
        return ScorchError(
            ScorchErrorCode::noDisc,
            localized("There is no disc in the drive “%@”. Insert a blank CD.", {driveName}));
    }
    if (!state.disc.isCd) {
        return ScorchError(
            ScorchErrorCode::discNotSuitable,
            localized("The disc in the drive “%@” is not a CD. Insert a blank CD.", {driveName}));
    }
    if (!state.disc.blank) {
        return ScorchError(ScorchErrorCode::discNotBlank,
                           localized("The disc in the drive “%@” is not blank. Eject it and "
                                     "insert a blank CD.",
                                     {driveName}));
    }
    return std::nullopt;
}

ScorchError nothingToBurnError() {
    return {ScorchErrorCode::nothingToBurn,
            localized("There is nothing to burn: the list is empty. Add files to it first.")};
}

ScorchError tooManyTracksError(std::size_t tracks) {
    return {ScorchErrorCode::tooManyTracks,
            localized("An audio CD takes %@ songs at most, and the list has %@. Remove some of "
                      "them and burn them on another disc.",
                      {std::to_string(maximumTracks), std::to_string(tracks)})};
}

ScorchError doesNotFitError(TrackKind kind, std::int64_t needed, std::int64_t free) {
    const auto amount = [kind](std::int64_t sectors) {
        return kind == TrackKind::audio
                   ? stringWithDurationFramesEnabled(sectors, false)
                   : stringWithFilesize(sectors * static_cast<std::int64_t>(dataSectorBytes));
    };
    return {ScorchErrorCode::doesNotFit,
            localized("The list does not fit on the disc: it needs %@, and the disc has room for "
                      "%@. Remove something from the list, or insert a larger disc.",
                      {amount(needed), amount(free)}),
            std::to_string(needed) + " sectors, free " + std::to_string(free)};
}

ScorchError driveBusyError(const std::string &driveName) {
    return {ScorchErrorCode::driveBusy,
            localized("The drive “%@” is busy with another disc. Wait until it has finished.",
                      {driveName})};
}

ScorchError wrongLengthError(const std::string &name) {
    return {ScorchErrorCode::internal,
            localized("“%@” turned out to have another length than expected. Remove it from the "
                      "list, add it again and start over.",
                      {name})};
}

} // namespace scorch
