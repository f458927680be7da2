// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorcherDevice.h"

#include <memory>

/// Stands in for a drive that is not there: answers false and zero to every query and ignores what
/// it is told, so that nobody who asks has to test for null first.
class AbsentDevice final : public ScorcherDevice {
public:
    std::string deviceName() const override { return {}; }
    void setDelegate(ScorcherDeviceDelegate * /*delegate*/) override {}
    bool cdBurnEnabled() const override { return false; }
    bool isCheckingDisc() const override { return false; }
    bool isDiscInDevice() const override { return false; }
    bool isDiscBlank() const override { return false; }
    bool isCDDisc() const override { return false; }
    std::int64_t freeTimeOfDisc() const override { return 0; }
    std::int64_t freeSizeOfDisc() const override { return 0; }
    void eject() override {}
};

/// The drive itself, or the one absent drive for null.
inline ScorcherDevice &deviceOrAbsent(const std::unique_ptr<ScorcherDevice> &device) {
    static AbsentDevice absent;
    return device != nullptr ? *device : absent;
}
