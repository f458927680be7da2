// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/AddFilesResult.h"
#include "scorch/burner/Announcer.h"
#include "scorch/burner/CheckQueue.h"
#include "scorch/burner/Item.h"
#include "scorch/support/Clock.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace scorch {

/// Told of a check while it runs, on the thread of the check. Must not block.
class CheckSink {
public:
    virtual ~CheckSink() = default;
    /// In the order of the list. The item is the sink's alone from then on.
    virtual void accepted(std::shared_ptr<Item> item) = 0;
    virtual void progressed(CheckProgress progress) = 0;
};

/// What a check did not take, in the order of the list.
struct CheckRefusals {
    std::vector<RefusedFile> protectedFiles;
    std::vector<RefusedFile> incompatibleFiles;
};

/// Looks at all files of a queue until that is empty, or until a stop is requested. Blocks. What
/// was accepted before a stop counts.
using CheckFunction =
    std::function<CheckRefusals(CheckQueue &, CheckSink &, const std::stop_token &)>;

/// Whether a report may be made now; if so it counts as made. At most four a second over the whole
/// run of a check: enough to read, and no load for a window.
inline bool mayReport(CheckQueue &queue, Moment now) {
    if (queue.reportedAt && now - *queue.reportedAt < std::chrono::milliseconds(250)) {
        return false;
    }
    queue.reportedAt = now;
    return true;
}

} // namespace scorch
