// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/CommandLine.h"
#include "engine/AddFilesResult.h"
#include "engine/ScorchError.h"

#include <cstdint>
#include <string>

class ScorcherDevice;

namespace cli {

enum class BurnStage {
    checking,
    waitingForDisc,
    preparing,
    openingTrack,
    writingTrack,
    closedTrack,
    closedSession,
    finishing,
    verifying,
    cancelling,
};

/// Where a burn stands. Tracks count from 1; 0 where a stage has none.
struct BurnStep {
    BurnStage stage = BurnStage::checking;
    std::uint64_t track = 0;
    std::uint64_t tracks = 0;
};

/// What was burned, for the last line.
struct BurnSummary {
    DiscKind kind = DiscKind::audio;
    std::int64_t items = 0;
    std::uint64_t capacity = 0; ///< CD frames (audio) or bytes (data).
    std::string discName;
    std::string driveName;
    std::size_t leftOut = 0; ///< Files that were refused.
    bool verified = true;
};

enum class RefusalKind { protectedFile, incompatibleFile };

/// Tells the user of a burn. Called on the main thread; checked and refused come before any other
/// step than checking; the last call is one of finished, failed and cancelled.
class Reporter {
public:
    virtual ~Reporter() = default;
    Reporter(const Reporter &) = delete;
    Reporter &operator=(const Reporter &) = delete;

    virtual void step(const BurnStep &step) = 0;
    /// File number `index` (from 1) of `count`.
    virtual void checking(const std::string &name, std::int64_t index, std::int64_t count) = 0;
    virtual void refused(const RefusedFile &file, RefusalKind kind) = 0;
    /// `leftFrames` in CD frames.
    virtual void progress(double fraction, std::uint64_t leftFrames) = 0;

    virtual void finished(const BurnSummary &summary) = 0;
    virtual void failed(const ScorchError &error) = 0;
    /// `device`: what it has now is to be told; null where the disc is as it was.
    virtual void cancelled(const ScorcherDevice *device) = 0;

protected:
    Reporter() = default;
};

/// The step in words: "Writing track 3 of 12".
std::string stepText(const BurnStep &step);

/// The last line: what is on which disc now.
std::string summaryText(const BurnSummary &summary);

/// "3 files were left out." Empty for 0.
std::string leftOutText(std::size_t leftOut);

/// "NAME: reason", the name safe to print.
std::string refusalText(const RefusedFile &file);

} // namespace cli
