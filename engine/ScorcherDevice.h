// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

class ScorcherDeviceDelegate;

/// A drive and its disc in detail, for a person who asks. What is not known is empty.
struct ScorcherDeviceDescription {
    std::string vendor; ///< As the drive says it, ASCII.
    std::string model;
    std::string revision;         ///< Of its firmware.
    std::filesystem::path node;   ///< The device node; of an image drive its folder.
    std::string medium;           ///< "CD-R", "DVD+RW".
    std::vector<int> writeSpeeds; ///< For this disc, 1000 bytes a second, fastest first.
    std::string problem;          ///< Why the drive cannot be used at present, for a person.

    bool operator==(const ScorcherDeviceDescription &) const = default;
};

/// A handle on one drive. Main thread only, but for devices(). Queries answer at once from what
/// the engine knows; they never touch the drive. The handle may be destroyed at any time, also
/// while a burn that was started with it runs.
class ScorcherDevice {
public:
    virtual ~ScorcherDevice() = default;
    ScorcherDevice(const ScorcherDevice &) = delete;
    ScorcherDevice &operator=(const ScorcherDevice &) = delete;

    /// The names of the drives that are present, in the engine's order, each once. Any thread. The
    /// first call of the process waits for one complete search; later ones answer at once.
    static std::vector<std::string> devices();

    /// A handle on the drive of that name. The empty name, and a name that no drive has, give a
    /// handle that answers false and zero to everything. Never null.
    static std::unique_ptr<ScorcherDevice> initWithDeviceName(const std::string &deviceName);

    /// The name that the handle was made with.
    virtual std::string deviceName() const = 0;

    /// Null takes the delegate off.
    virtual void setDelegate(ScorcherDeviceDelegate *delegate) = 0;

    /// True exactly for a drive that can NOT write CDs; the name reads the other way.
    virtual bool cdBurnEnabled() const = 0;
    /// The drive is still examining a newly inserted disc.
    virtual bool isCheckingDisc() const = 0;
    virtual bool isDiscInDevice() const = 0;
    virtual bool isDiscBlank() const = 0;
    virtual bool isCDDisc() const = 0;

    /// Free playing time of a blank disc in CD frames (75 a second); 0 without one.
    virtual std::int64_t freeTimeOfDisc() const = 0;
    /// Free space of a blank disc in bytes (2048 a sector); 0 without one.
    virtual std::int64_t freeSizeOfDisc() const = 0;

    /// All empty for a drive that is not there.
    virtual ScorcherDeviceDescription description() const { return {}; }

    /// Puts the disc out. Ignored while the drive burns.
    virtual void eject() = 0;

protected:
    ScorcherDevice() = default;
};
