// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/libburn/LibburnMessage.h"

#include <mutex>
#include <string>
#include <vector>

namespace scorch {

/// What libburn said while a recording was under way. libburn does not say which drive a message is
/// about: while several recordings run, each gets all of them, marked. Any thread.
class MessageInbox {
public:
    /// Errors are logged. `isShared`: it may be about another drive.
    void add(const LibburnMessage &message, bool isShared);

    /// A failure of this recording was reported, and no other that it could be of.
    bool hasFailure() const;
    /// All errors so far, those that may be of another drive included, oldest first.
    std::vector<LibburnMessage> errors() const;
    /// A worker of libburn's has gone; of another drive's, while there are several.
    bool hasWorkerEnded() const;
    void clear();

private:
    mutable std::mutex mutex_;
    std::vector<LibburnMessage> errors_; ///< The first few: a drive that is lost fails for ever.
    bool hasFailure_ = false;
    bool hasWorkerEnded_ = false;
};

} // namespace scorch
