// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/BurnEvents.h"
#include "scorch/drive/Drive.h"
#include "scorch/support/Clock.h"
#include "scorch/support/DiscContent.h"
#include "scorch/support/Result.h"

#include <functional>
#include <memory>
#include <stop_token>

namespace scorch {

/// Makes what goes on the disc ready: opens sources, lays the image out. Called on the burn thread.
using ContentFactory =
    std::function<Outcome<std::unique_ptr<DiscContent>>(const std::stop_token &)>;

/// All that one burn needs.
struct BurnRequest {
    std::shared_ptr<Drive> drive;
    ContentFactory makeContent;
    bool verify = true;
    Clock clock = systemClock();
};

/// Burns one disc, from preparing to done. Blocks; the drive is at rest when it returns. A stop
/// request is noticed within a quarter of a second but while the drive commits, which is not to be
/// stopped: a disc that is complete by then is reported as done. Nothing is thrown.
BurnEnd runBurn(const BurnRequest &request, BurnObserver &observer, const std::stop_token &stop);

} // namespace scorch
