// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <utility>

/// Why an operation of the engine failed, as something a client can act on. The numbers are part
/// of the contract (they appear in logs): never renumber.
enum class ScorchErrorCode : int {
    internal = 1,

    // The list.
    nothingToBurn = 10,
    tooManyTracks = 11, ///< More than the 99 that the Red Book allows.
    doesNotFit = 12,
    burnerBusy = 13, ///< The burner is checking files or burning already.

    // The drive and its disc.
    noDrive = 20,
    driveBusy = 21,
    driveGone = 22,
    noDisc = 23,
    discNotBlank = 24,
    discNotSuitable = 25,    ///< Not a CD, or not recordable.
    finishedBeforeStop = 26, ///< The disc was complete before the request to stop arrived.
    driveNotAllowed = 27,    ///< The user may not open the drive.
    driveSilent = 28,        ///< It does not answer, or does not become ready.
    driveFailed = 29,        ///< It reports a fault, or refuses what it should be able to do.

    // What goes on the disc.
    sourceMissing = 30,
    sourceUnreadable = 31,
    sourceChanged = 32,  ///< Shrank, grew or was replaced since it was added.
    sourceTooShort = 33, ///< A song decoded to less than was counted.

    // Where it goes.
    targetMissing = 40,
    targetNotWritable = 41,
    targetFull = 42,
    writeFailed = 43,

    verifyFailed = 50,
};

/// A failure, told three ways: a code to act on, a text for a person (UTF-8: what happened, to
/// what, what can be done), and the system's or drive's own detail for the log.
class ScorchError {
public:
    ScorchError(ScorchErrorCode category, std::string description, std::string detail = {})
        : category_(category), description_(std::move(description)), detail_(std::move(detail)) {}

    ScorchErrorCode category() const { return category_; }

    /// The code as a number, for the log.
    int code() const { return static_cast<int>(category_); }

    /// For a person, in their language.
    const std::string &localizedDescription() const { return description_; }

    /// For the log: errno text, sense codes, a library's message. May be empty.
    const std::string &detail() const { return detail_; }

private:
    ScorchErrorCode category_;
    std::string description_;
    std::string detail_;
};
