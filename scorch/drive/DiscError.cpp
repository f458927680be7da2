// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/DiscError.h"

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

ScorchError wrongLengthError(const std::string &name) {
    return {ScorchErrorCode::internal,
            localized("“%@” turned out to have another length than expected. Remove it from the "
                      "list, add it again and start over.",
                      {name})};
}

} // namespace scorch
