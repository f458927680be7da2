// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <memory>
#include <string>

/// Devices as udev and sysfs show them, made up by a test.
class Testbed {
public:
    Testbed();
    ~Testbed();
    Testbed(const Testbed &) = delete;
    Testbed &operator=(const Testbed &) = delete;

    /// A file that is there as long as udev runs.
    std::filesystem::path control() const { return folder_ / "control"; }

    /// Puts a drive ("sr0") there; nothing is told of it. `vendor` and `model` as the kernel pads
    /// them.
    void put(const std::string &name, const std::string &vendor, const std::string &model);
    /// A disk that is no optical drive.
    void putDisk(const std::string &name);
    /// Tells of it: "add", "change".
    void tell(const std::string &name, const std::string &action);
    void tellOfMedium(const std::string &name);
    /// Takes it away and tells of that.
    void remove(const std::string &name);
    /// How often the kernel looks for discs, -1 for as often as the common setting says.
    void setPolling(const std::string &name, int milliseconds);
    void setCommonPolling(int milliseconds);

private:
    struct Bed;

    const TemporaryFolder folder_;
    const std::unique_ptr<Bed> bed_;
};
