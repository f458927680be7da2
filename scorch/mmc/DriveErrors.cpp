// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveErrors.h"

#include "engine/ScorchHooks.h"
#include "scorch/mmc/DeviceHolder.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace scorch {
namespace {

using Code = ScorchErrorCode;

constexpr int any = -1;

/// What a sense triple means to a person. Each text has one placeholder, for the drive.
struct SenseMeaning {
    int key;
    int asc;
    int ascq;
    Code category;
    std::string_view text;
};

constexpr std::string_view noDisc =
    localizableKey("There is no disc in the drive “%@”. Insert a blank CD.");
constexpr std::string_view trayOpen = localizableKey(
    "The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.");
constexpr std::string_view discChanged =
    localizableKey("The disc was taken out of the drive “%@”, or another one was put in. Insert a "
                   "blank CD, and try again.");
constexpr std::string_view notReady =
    localizableKey("The drive “%@” does not become ready. Take the disc out, clean it or take "
                   "another one, and try again.");
constexpr std::string_view notRecordable =
    localizableKey("The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.");
constexpr std::string_view writeProtected =
    localizableKey("The disc in the drive “%@” is protected against writing. Insert another one.");
constexpr std::string_view tooSmall = localizableKey(
    "The disc in the drive “%@” has less room than it said. Burn on a disc of another make.");
constexpr std::string_view calibration =
    localizableKey("The drive “%@” could not adjust its laser to the disc. Try a disc of another "
                   "make. If this happens with every disc, the lens may be dirty.");
constexpr std::string_view tooSlow =
    localizableKey("The drive “%@” had to wait for data, and the disc is spoilt. Close other "
                   "programs, and try again with a new disc.");
constexpr std::string_view writeError =
    localizableKey("The disc in the drive “%@” could not be written. It cannot be used any more: "
                   "try again with a new one, best of another make.");
constexpr std::string_view closingError =
    localizableKey("The drive “%@” could not close the disc. Other drives may not be able to read "
                   "it: try again with a new one.");
constexpr std::string_view readError =
    localizableKey("The disc in the drive “%@” could not be read. Clean it, or take another one.");
constexpr std::string_view hardware =
    localizableKey("The drive “%@” reports a fault of its own. Switch it off and on again. If that "
                   "does not help, use another drive.");
constexpr std::string_view disturbed =
    localizableKey("The connection to the drive “%@” was disturbed. Check its cable, connect it "
                   "directly to the computer, and try again.");
constexpr std::string_view unsupported = localizableKey(
    "The drive “%@” refuses to write in the way that is needed here. Use another drive.");
constexpr std::string_view locked = localizableKey(
    "The disc cannot be taken out of the drive “%@”: another program has locked it in.");
constexpr std::string_view jammed = localizableKey(
    "The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.");

/// The first line that fits counts. Codes: MMC-5, annex F; SPC-3, annex D.
constexpr std::array meanings = {
    SenseMeaning{2, 0x3A, 0x02, Code::noDisc, trayOpen},
    SenseMeaning{2, 0x3A, any, Code::noDisc, noDisc},
    SenseMeaning{2, 0x30, any, Code::discNotSuitable, notRecordable},
    SenseMeaning{2, any, any, Code::driveSilent, notReady},
    SenseMeaning{any, 0x73, 0x00, Code::writeFailed, calibration},
    SenseMeaning{any, 0x73, 0x01, Code::writeFailed, calibration},
    SenseMeaning{any, 0x73, 0x02, Code::writeFailed, calibration},
    SenseMeaning{any, 0x73, 0x03, Code::writeFailed, calibration},
    SenseMeaning{any, 0x0C, 0x09, Code::writeFailed, tooSlow},
    SenseMeaning{any, 0x0C, 0x0A, Code::writeFailed, tooSlow},
    SenseMeaning{any, 0x27, any, Code::discNotSuitable, writeProtected},
    SenseMeaning{any, 0x30, any, Code::discNotSuitable, notRecordable},
    SenseMeaning{3, 0x72, any, Code::writeFailed, closingError},
    SenseMeaning{5, 0x72, any, Code::writeFailed, closingError},
    SenseMeaning{3, 0x11, any, Code::driveFailed, readError},
    SenseMeaning{3, 0x02, any, Code::driveFailed, readError},
    SenseMeaning{3, 0x57, any, Code::driveFailed, readError}, // No table of contents.
    SenseMeaning{3, any, any, Code::writeFailed, writeError},
    SenseMeaning{4, 0x53, 0x00, Code::driveFailed, jammed},
    SenseMeaning{4, any, any, Code::driveFailed, hardware},
    SenseMeaning{5, 0x63, any, Code::doesNotFit, tooSmall},
    SenseMeaning{5, 0x21, 0x00, Code::doesNotFit, tooSmall},
    SenseMeaning{5, 0x53, 0x02, Code::driveBusy, locked},
    SenseMeaning{5, any, any, Code::driveFailed, unsupported},
    SenseMeaning{6, 0x28, any, Code::noDisc, discChanged},
    SenseMeaning{6, any, any, Code::driveFailed, disturbed}, // It was reset.
    SenseMeaning{7, any, any, Code::discNotSuitable, writeProtected},
    SenseMeaning{0xB, any, any, Code::driveFailed, disturbed},
    SenseMeaning{any, 0x63, any, Code::doesNotFit, tooSmall}, // 8/63: blank check at the end.
};

bool fits(int wanted, std::uint8_t found) {
    return wanted == any || wanted == found;
}

std::string senseDetail(const Sense &sense, const std::string &detail) {
    const std::string triple = "sense " + senseText(sense);
    return detail.empty() ? triple : triple + ": " + detail;
}

ScorchError notAllowedError(const DriveErrorContext &context, const std::string &detail) {
    const std::string group = groupOf(context.node);
    if (group.empty()) {
        return {Code::driveNotAllowed,
                localized("You are not allowed to use the drive “%@”. Ask an administrator for "
                          "access to it.",
                          {context.driveName}),
                detail};
    }
    return {Code::driveNotAllowed,
            localized("You are not allowed to use the drive “%@”: it belongs to the group “%@”. "
                      "Ask an administrator to add you to this group, then log in again.",
                      {context.driveName, group}),
            detail};
}

ScorchError heldError(const DriveErrorContext &context, const std::string &detail) {
    const std::string holder = holderOf(context.node);
    if (holder.empty()) {
        return {Code::driveBusy,
                localized("Another program uses the drive “%@”. Wait until it has finished, or "
                          "close it, then try again.",
                          {context.driveName}),
                detail};
    }
    return {Code::driveBusy,
            localized("The program %@ uses the drive “%@”. Wait until it has finished, or close "
                      "it, then try again.",
                      {holder, context.driveName}),
            detail};
}

} // namespace

ScorchError senseError(const Sense &sense, const DriveErrorContext &context,
                       const std::string &detail) {
    const auto *const found =
        std::find_if(meanings.begin(), meanings.end(), [&sense](const SenseMeaning &meaning) {
            return fits(meaning.key, sense.key) && fits(meaning.asc, sense.asc) &&
                   fits(meaning.ascq, sense.ascq);
        });
    if (found == meanings.end()) {
        return {Code::driveFailed,
                localized("The drive “%@” reports an error (%@). Try again; if that does not help, "
                          "use another disc or another drive.",
                          {context.driveName, senseText(sense)}),
                senseDetail(sense, detail)};
    }
    if (found->text == writeError && context.sector) {
        return {
            found->category,
            localized("The disc in the drive “%@” could not be written at sector %@. It cannot be "
                      "used any more: try again with a new one, best of another make.",
                      {context.driveName, std::to_string(*context.sector)}),
            senseDetail(sense, detail)};
    }
    return {found->category, localized(found->text, {context.driveName}),
            senseDetail(sense, detail)};
}

ScorchError ejectError(const MmcError &error, const DriveErrorContext &context) {
    if (error.kind == MmcError::Kind::other && error.systemError == EIO) {
        return {Code::driveFailed, localized(jammed, {context.driveName}), error.detail()};
    }
    return driveError(error, context);
}

ScorchError driveError(const MmcError &error, const DriveErrorContext &context) {
    switch (error.kind) {
    case MmcError::Kind::sense:
        return senseError(error.sense, context, error.command);
    case MmcError::Kind::noPermission:
        return notAllowedError(context, error.detail());
    case MmcError::Kind::busy:
        return heldError(context, error.detail());
    case MmcError::Kind::gone:
        return {Code::driveGone,
                localized("The drive “%@” has been disconnected. Connect it again, and start anew "
                          "with a blank CD.",
                          {context.driveName}),
                error.detail()};
    case MmcError::Kind::timedOut:
        return {Code::driveSilent,
                localized("The drive “%@” does not answer. Switch it off and on again, or connect "
                          "it anew.",
                          {context.driveName}),
                error.detail()};
    default:
        return {Code::driveFailed,
                localized("The drive “%@” cannot be used (%@).",
                          {context.driveName, std::generic_category().message(error.systemError)}),
                error.detail()};
    }
}

} // namespace scorch
