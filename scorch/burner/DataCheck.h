// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/Check.h"
#include "scorch/iso/IsoTree.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stop_token>

namespace scorch {

/// What a check of files and folders needs; see scorch/iso/IsoTree.h.
struct DataCheckServices {
    std::function<std::uint64_t(const std::filesystem::path &, const std::stop_token &)> count;
    std::function<Outcome<IsoScan>(const std::filesystem::path &, const ScanProgress &,
                                   const std::stop_token &)>
        scan;
    Clock clock;
};

/// A CheckFunction for files and folders. Items have their own names yet: whether another item of
/// the list has the same is for the list to say.
CheckRefusals checkFiles(const DataCheckServices &services, CheckQueue &queue, CheckSink &sink,
                         const std::stop_token &stop);

} // namespace scorch
