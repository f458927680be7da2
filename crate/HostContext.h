// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/UsageCollector.h"
#include "host/VXUtilitiesToolContext.h"

namespace crate {

/// What tools reach of this host. Outlives every tool, for a tool may keep it for as long as its
/// library is loaded: there is one for the process. Main thread.
class HostContext : public VXUtilitiesToolContext {
public:
    static HostContext &instance() {
        static HostContext context;
        return context;
    }

    VXUserDataCollector *userDataCollector() override { return &collector; }

    UsageCollector collector;

private:
    HostContext() = default;
};

} // namespace crate
