// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/MmcDevice.h"

#include "scorch/mmc/SgTransport.h"

namespace scorch {

Result<MmcDevice, MmcError> MmcDevice::open(const std::filesystem::path &node) {
    Result<std::unique_ptr<MmcTransport>, MmcError> transport = SgTransport::open(node);
    if (!transport) {
        return transport.error();
    }
    return MmcDevice(std::move(*transport));
}

} // namespace scorch
