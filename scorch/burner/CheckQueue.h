// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnFile.h"
#include "scorch/support/Clock.h"

#include <cstdint>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace scorch {

/// The files that a check has yet to look at: filled by the main thread, also while the check runs,
/// and emptied by the check.
class CheckQueue {
public:
    using Files = std::vector<BurnFile>;

    /// More files for the check, which are taken out of `files`. False, and they are left there,
    /// once the check has come to its end and takes none any more.
    bool join(Files &files) {
        const std::lock_guard lock(mutex_);
        if (closed_) {
            return false;
        }
        batches_.push_back(std::move(files));
        return true;
    }

    /// What has been added since the last call, or nothing.
    std::optional<Files> take() {
        const std::lock_guard lock(mutex_);
        return takeLocked();
    }

    /// The same, but if there is nothing, the queue is closed: the check ends.
    std::optional<Files> takeOrClose() {
        const std::lock_guard lock(mutex_);
        closed_ = batches_.empty();
        return takeLocked();
    }

    /// The next check of the same run takes files again.
    void reopen() {
        const std::lock_guard lock(mutex_);
        closed_ = false;
    }

    // Counted over the whole run, by the thread that checks.
    std::int64_t looked = 0;          ///< Files looked at so far.
    std::int64_t count = 0;           ///< Files known of.
    std::optional<Moment> reportedAt; ///< When the last report was made.

private:
    std::optional<Files> takeLocked() {
        if (batches_.empty()) {
            return std::nullopt;
        }
        Files files = std::move(batches_.front());
        batches_.erase(batches_.begin());
        return files;
    }

    std::mutex mutex_;
    bool closed_ = false;
    std::vector<Files> batches_;
};

} // namespace scorch
