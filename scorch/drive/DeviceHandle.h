// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorcherDevice.h"
#include "scorch/drive/DriveRegistry.h"

#include <cstdint>
#include <memory>
#include <string>

namespace scorch {

/// A client's handle: a name, and whatever drive has it at the moment. Main thread only.
class DeviceHandle final : public ScorcherDevice {
public:
    DeviceHandle(std::shared_ptr<DriveRegistry> registry, std::shared_ptr<DeviceWatch> watch);
    ~DeviceHandle() override;

    std::string deviceName() const override;
    void setDelegate(ScorcherDeviceDelegate *delegate) override;
    bool cdBurnEnabled() const override;
    bool isCheckingDisc() const override;
    bool isDiscInDevice() const override;
    bool isDiscBlank() const override;
    bool isCDDisc() const override;
    std::int64_t freeTimeOfDisc() const override;
    std::int64_t freeSizeOfDisc() const override;
    ScorcherDeviceDescription description() const override;
    void eject() override;

private:
    std::shared_ptr<Drive> drive() const;
    DiscState disc() const;

    std::shared_ptr<DriveRegistry> registry_;
    std::shared_ptr<DeviceWatch> watch_;
};

} // namespace scorch
