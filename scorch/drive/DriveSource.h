// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/Drive.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace scorch {

/// Where drives come from: one source for each kind of them.
class DriveSource {
public:
    /// Told of drives that come and go after the search. Any thread, under no lock.
    struct Observer {
        std::function<void(std::shared_ptr<Drive>)> appeared;
        std::function<void(const std::string &name)> disappeared;
    };

    /// The destructor returns when the observer is not called any more.
    virtual ~DriveSource() = default;
    DriveSource(const DriveSource &) = delete;
    DriveSource &operator=(const DriveSource &) = delete;

    /// One complete search, called once. Blocks; any thread. Names are unique within a source.
    virtual std::vector<std::shared_ptr<Drive>> search(Observer observer) = 0;

protected:
    DriveSource() = default;
};

} // namespace scorch
