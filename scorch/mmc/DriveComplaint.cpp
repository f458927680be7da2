// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveComplaint.h"

#include "scorch/mmc/MmcCommands.h"

namespace scorch {
namespace {

constexpr std::uint8_t unitAttention = 6;

} // namespace

std::optional<MmcError> complaintOf(const std::filesystem::path &node) {
    auto device = MmcDevice::open(node);
    if (!device) {
        return device.error();
    }
    auto ready = testUnitReady(*device);
    if (!ready && ready.error().kind == MmcError::Kind::sense &&
        ready.error().sense.key == unitAttention) {
        ready = testUnitReady(*device); // It has told what happened; this is what is.
    }
    if (ready) {
        return std::nullopt;
    }
    return ready.error();
}

} // namespace scorch
