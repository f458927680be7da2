// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/RecordingErrors.h"

#include "scorch/mmc/DriveComplaint.h"
#include "scorch/mmc/DriveExamination.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <utility>

namespace scorch {
namespace {

using Code = ScorchErrorCode;

/// The first that `is`, or none.
template <class Predicate>
const LibburnMessage *firstOf(const std::vector<LibburnMessage> &messages, Predicate is) {
    const auto found = std::find_if(messages.begin(), messages.end(), is);
    return found != messages.end() ? &*found : nullptr;
}

MmcError mmcError(MmcError::Kind kind, const LibburnMessage &message) {
    return {.kind = kind, .sense = {}, .systemError = message.systemError, .command = message.text};
}

} // namespace

std::optional<ScorchError> refusalOf(const MediumState &medium, const SessionPlan &plan,
                                     const std::string &driveName) {
    if (plan.sectors.empty()) {
        return nothingToBurnError();
    }
    if (plan.sectors.size() > maximumTracks) {
        return tooManyTracksError(plan.sectors.size());
    }
    const DriveState state{.canWriteCd = true, .checking = false, .disc = discState(medium)};
    if (auto error = discError(driveName, state)) {
        return error;
    }
    if (plan.total() > medium.freeSectors) {
        return doesNotFitError(plan.kind, plan.total(), medium.freeSectors);
    }
    return std::nullopt;
}

ScorchError writingError(const std::vector<LibburnMessage> &messages, DriveErrorContext context) {
    if (const auto *lost = firstOf(messages, isLostConnection)) {
        return driveError(mmcError(MmcError::Kind::gone, *lost), context);
    }
    const auto *failed = firstOf(messages, [](const LibburnMessage &message) {
        return isWriteFailure(message) && senseIn(message);
    });
    const auto *silent = firstOf(messages, isTimeOut);
    if (silent != nullptr && (failed == nullptr || silent < failed)) {
        return driveError(mmcError(MmcError::Kind::timedOut, *silent), context);
    }
    if (failed != nullptr) {
        context.sector = sectorIn(*failed);
        return senseError(*senseIn(*failed), context, failed->text);
    }
    const auto *first = firstOf(messages, isWriteFailure);
    return {Code::writeFailed,
            localized("The disc in the drive “%@” could not be written. It cannot be used any "
                      "more: try again with a new one, best of another make.",
                      {context.driveName}),
            first != nullptr ? first->text : "no reason given"};
}

ScorchError recordingError(const std::vector<LibburnMessage> &messages,
                           const DriveErrorContext &context) {
    const bool isExplained =
        std::any_of(messages.begin(), messages.end(), [](const LibburnMessage &message) {
            return isLostConnection(message) || isTimeOut(message) ||
                   (isWriteFailure(message) && senseIn(message));
        });
    const auto complaint = isExplained ? std::nullopt : complaintOf(context.node);
    return complaint ? driveError(*complaint, context) : writingError(messages, context);
}

ScorchError wrongDiscError(const std::string &driveName, const std::string &detail) {
    return {Code::writeFailed,
            localized("The disc in the drive “%@” was written, but it is not as it should be. Do "
                      "not rely on this disc: burn the list again on another one.",
                      {driveName}),
            detail};
}

ScorchError unverifiedError(const std::string &driveName, const std::string &detail) {
    return {Code::verifyFailed,
            localized("The disc was written, but it could not be verified: the drive “%@” was "
                      "disconnected, does not answer, or lost its disc. Check in a player or "
                      "computer whether it can be read.",
                      {driveName}),
            detail};
}

ScorchError readBackError(TrackKind kind, std::size_t track, const std::string &name,
                          const std::string &detail) {
    if (kind == TrackKind::audio) {
        return {Code::verifyFailed,
                localized("Track %@, “%@”, cannot be read back from the disc. Do not rely on this "
                          "disc: burn the list again on another one.",
                          {std::to_string(track + 1), name}),
                detail};
    }
    if (name.empty()) {
        return {Code::verifyFailed,
                localized("The table of contents of the disc cannot be read back. Do not rely on "
                          "this disc: burn the list again on another one."),
                detail};
    }
    return {Code::verifyFailed,
            localized("“%@” cannot be read back from the disc. Do not rely on this disc: burn the "
                      "list again on another one.",
                      {name}),
            detail};
}

} // namespace scorch
