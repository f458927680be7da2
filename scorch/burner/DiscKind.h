// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchError.h"
#include "engine/ScorcherDevice.h"
#include "scorch/burner/BurnJob.h"
#include "scorch/burner/Check.h"
#include "scorch/burner/Item.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace scorch {

/// What differs between sound and data: how files are checked, what the list takes on a disc, and
/// what goes on it. Owned and called by one burner, on the main thread; the functions it hands out
/// are for the burner's workers and do not refer to it.
class DiscKind {
public:
    virtual ~DiscKind() = default;
    DiscKind(const DiscKind &) = delete;
    DiscKind &operator=(const DiscKind &) = delete;

    virtual CheckFunction check() const = 0;

    /// A new item, before it goes into the list: the last chance to change it.
    virtual void adopt(Item &item) = 0;
    /// Items that have left the list.
    virtual void forget(const std::vector<ItemRef> &items) = 0;

    /// Of the list as it is: CD frames or bytes. Never too small.
    virtual std::uint64_t usedCapacity() const = 0;
    /// Whether usedCapacity is exact. If not, it is being found out for this list, and `settled` is
    /// called on the main thread when there is something new to ask for.
    virtual bool settle(const std::vector<ItemRef> &list, std::function<void()> settled) = 0;

    virtual std::int64_t freeCapacity(const ScorcherDevice &device) const = 0;

    /// Why this list cannot be burned, whatever the disc.
    virtual std::optional<ScorchError> refusal(const std::vector<ItemRef> &list) const = 0;
    virtual ContentFactory content(std::vector<ItemRef> list, std::string discName) const = 0;

    /// Stops and joins whatever runs. `settled` is not called any more.
    virtual void shutDown() = 0;

protected:
    DiscKind() = default;
};

} // namespace scorch
