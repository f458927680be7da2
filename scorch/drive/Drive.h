// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorcherDevice.h"
#include "scorch/support/DiscContent.h"
#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>

namespace scorch {

/// The medium in a drive, as last examined.
struct DiscState {
    bool present = false;
    bool isCd = false;
    bool blank = false;
    std::int64_t freeSectors = 0; ///< Of a blank CD; 0 otherwise. The same for sound and data.

    bool operator==(const DiscState &) const = default;
};

/// All that a client can see of a drive. A copied value.
struct DriveState {
    bool canWriteCd = false;
    bool checking = false;
    DiscState disc;

    bool operator==(const DriveState &) const = default;
};

/// Where a recording stands. Called on the burn thread; must not block.
class RecordObserver {
public:
    virtual ~RecordObserver() = default;

    /// Tracks from 1.
    virtual void openingTrack(std::size_t track, std::size_t count) = 0;
    virtual void writingTrack(std::size_t track, std::size_t count) = 0;
    virtual void closedTrack(std::size_t track, std::size_t count) = 0;
    virtual void closedSession() = 0;
    /// What was sent is being brought to the medium: flush, lead-out.
    virtual void finishing() = 0;
    /// Sectors of the whole disc written so far.
    virtual void wroteSectors(std::int64_t sectors) = 0;
};

/// Sectors of a track, counted from its start: `first` and all up to `end`, which is not in it.
struct SectorRange {
    std::int64_t first = 0;
    std::int64_t end = 0;

    bool operator==(const SectorRange &) const = default;
};

/// One recording on one disc. Made by Drive::beginRecording, used by the burn thread. Legal order:
/// record, then any number of readableSectors and readBack, then commit. The content that was
/// recorded outlives the last readBack. Destroying it before commit undoes what can be undone (an
/// image drive leaves nothing) and returns when the drive is at rest.
class DiscRecording {
public:
    virtual ~DiscRecording() = default;
    DiscRecording(const DiscRecording &) = delete;
    DiscRecording &operator=(const DiscRecording &) = delete;

    /// Writes all tracks and closes the disc. Blocks. Notices a stop request within 200 ms.
    virtual Outcome<> record(DiscContent &content, RecordObserver &observer,
                             const std::stop_token &stop) = 0;

    /// Reads whole sectors of a recorded track (index from 0) back from the medium, not from a
    /// memory of what was sent, as far as the medium allows. Fills `buffer` or fails.
    virtual Outcome<> readBack(std::size_t track, std::int64_t firstSector,
                               std::span<std::byte> buffer, const std::stop_token &stop) = 0;

    /// What of a recorded track readBack can reach. A CD drive reads sound some samples early or
    /// late, and what that pushes past an end of the disc cannot be read. Blocks, may fail.
    virtual Outcome<SectorRange> readableSectors(std::size_t /*track*/, std::int64_t sectors,
                                                 const std::stop_token & /*stop*/) {
        return SectorRange{0, sectors};
    }

    /// The disc is complete and stays so whether it is committed or not, so that a stop request
    /// comes too late: a CD, once record has succeeded.
    virtual bool isComplete() const { return false; }

    /// Makes the recording final. From here on it stays, whatever happens.
    virtual Result<void> commit() = 0;

protected:
    DiscRecording() = default;
};

/// One drive. Queries answer from memory; any thread. A drive outlives the handles on it and is
/// shared by them and by a burn.
class Drive {
public:
    virtual ~Drive() = default;
    Drive(const Drive &) = delete;
    Drive &operator=(const Drive &) = delete;

    /// As the user sees it, unique among the drives, UTF-8.
    virtual const std::string &name() const = 0;
    virtual DriveState state() const = 0;

    /// `changed` is called on any thread, under no lock, after each real change of state().
    virtual void setStateObserver(std::function<void()> changed) = 0;

    /// Whether anybody looks at the drive: holds a handle on it. A drive that nobody looks at is
    /// left alone; state() is then what was known last. Main thread; returns at once. By the time
    /// it has, state() says `checking` where the drive has yet to find out what it holds.
    virtual void setWatched(bool /*watched*/) {}

    virtual ScorcherDeviceDescription description() const { return {}; }

    /// Why the drive cannot be used at present, whatever is in it: nobody may open it, it does not
    /// answer. Nothing where it can.
    virtual std::optional<ScorchError> obstacle() const { return std::nullopt; }

    /// Starts to put the disc out; ignored while a recording holds the drive.
    virtual void eject() = 0;

    /// Takes the drive for one recording of this content. Fails where it can be known beforehand
    /// that it cannot work (folder missing, read-only or full; no blank disc; too long). Blocks.
    virtual Outcome<std::unique_ptr<DiscRecording>> beginRecording(const DiscContent &content,
                                                                   const std::stop_token &stop) = 0;

protected:
    Drive() = default;
};

} // namespace scorch
