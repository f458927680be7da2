// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/MessageInbox.h"

#include "scorch/support/Log.h"

#include <cstddef>

namespace scorch {
namespace {

constexpr std::size_t mostErrors = 50;

} // namespace

void MessageInbox::add(const LibburnMessage &message, bool isShared) {
    {
        const std::lock_guard lock(mutex_);
        hasWorkerEnded_ = hasWorkerEnded_ || isWorkerEnd(message);
        hasFailure_ = hasFailure_ || (!isShared && isWriteFailure(message));
        if (!message.isError || errors_.size() == mostErrors) {
            return;
        }
        errors_.push_back(message);
    }
    logLine("libburn: " + message.text);
}

bool MessageInbox::hasFailure() const {
    const std::lock_guard lock(mutex_);
    return hasFailure_;
}

std::vector<LibburnMessage> MessageInbox::errors() const {
    const std::lock_guard lock(mutex_);
    return errors_;
}

bool MessageInbox::hasWorkerEnded() const {
    const std::lock_guard lock(mutex_);
    return hasWorkerEnded_;
}

void MessageInbox::clear() {
    const std::lock_guard lock(mutex_);
    errors_.clear();
    hasFailure_ = false;
    hasWorkerEnded_ = false;
}

} // namespace scorch
