// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/CdText.h"
#include "scorch/libburn/SectorRing.h"
#include "scorch/libburn/SessionPlan.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace scorch {

/// What libburn took from a track and gave to the drive, in bytes.
struct TrackCounters {
    std::uint64_t read = 0;
    std::uint64_t written = 0;
};

/// A drive that libburn holds exclusively, and one session that is written on it. All of it, the
/// destructor too, on the LibburnThread. Legal order: grab, write, isIdle until true, then write
/// once more or the results. The destructor gives the drive free, with its door unlocked; only when
/// isIdle is true or nothing was written.
class LibburnSession {
public:
    /// Takes the drive. Blocks for half a second. Null where libburn could not; it says why.
    static std::unique_ptr<LibburnSession> grab(const std::filesystem::path &node);
    ~LibburnSession();
    LibburnSession(const LibburnSession &) = delete;
    LibburnSession &operator=(const LibburnSession &) = delete;

    enum class Start {
        asked,      ///< libburn was asked to write. It may still refuse, by a message only.
        busy,       ///< Something is being written still.
        impossible, ///< The plan or the text cannot be written; libburn says why.
    };

    /// Starts to write what comes out of the ring. `speed` in kB/s, 0 is the fastest.
    Start write(const SessionPlan &plan, const std::optional<CdText> &text, int speed,
                const std::shared_ptr<SectorRing> &ring);

    /// Nothing is being written (any more).
    bool isIdle() const;
    /// Asks for the end of writing before its time. Does not wake a source that waits.
    void cancel();

    /// libburn's opinion; it is true in some cases that were none.
    bool wroteWell() const;
    /// Of each track, of the last write.
    std::vector<TrackCounters> counters() const;

    /// The drive will never be idle: the destructor leaves all as it is.
    void abandon() { isAbandoned_ = true; }

private:
    struct Handles;
    explicit LibburnSession(std::unique_ptr<Handles> handles);

    bool layOut(const SessionPlan &plan, const std::shared_ptr<SectorRing> &ring);

    std::unique_ptr<Handles> handles_;
    bool isAbandoned_ = false;
};

} // namespace scorch
