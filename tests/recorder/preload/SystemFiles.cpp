// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/SystemFiles.h"

#include "tests/recorder/Files.h"
#include "tests/recorder/preload/Drives.h"

#include <string_view>
#include <system_error>
#include <vector>

namespace recorder::preload {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kInfo = "/proc/sys/dev/cdrom/info";
constexpr std::string_view kScsiDevices = "/sys/bus/scsi/devices";

bool isBelow(std::string_view path, std::string_view folder) {
    return path.substr(0, folder.size()) == folder &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

std::string info(const std::vector<int> &numbers) {
    std::string text = "CD-ROM information, Id: cdrom.c 3.20 2003/12/17\n\ndrive name:\t";
    for (const int number : numbers) {
        text += "\tsr" + std::to_string(number);
    }
    return text + "\n";
}

/// A text of INQUIRY, padded as it came.
std::string inquiryText(Recorder &drive, std::size_t at, std::size_t length) {
    const Bytes inquiry = {0x12, 0, 0, 0, 36, 0};
    const SignalsHeld held;
    Bytes data = drive.execute(inquiry).data;
    data.resize(36, Byte{' '});
    return {data.begin() + static_cast<std::ptrdiff_t>(at),
            data.begin() + static_cast<std::ptrdiff_t>(at + length)};
}

void layScsiDevice(const fs::path &devices, int number, Recorder &drive) {
    const fs::path device = devices / (std::to_string(number) + ":0:0:0");
    fs::create_directories(device / "block" / ("sr" + std::to_string(number)));
    replaceFile(device / "type", "5\n");
    replaceFile(device / "vendor", inquiryText(drive, 8, 8) + "\n");
    replaceFile(device / "model", inquiryText(drive, 16, 16) + "\n");
    replaceFile(device / "rev", inquiryText(drive, 32, 4) + "\n");
}

/// Each process lays them down once; drives that come later are found by opening them.
void layDown(const fs::path &system) {
    Drives &drives = Drives::instance();
    std::vector<int> present;
    const fs::path devices = system.string() + std::string(kScsiDevices);
    fs::create_directories(devices);
    for (int number = 0; number < Drives::kMost; ++number) {
        if (drives.isPresent(number)) {
            present.push_back(number);
            layScsiDevice(devices, number, *drives.recorder(number));
        }
    }
    const fs::path infoPath = system.string() + std::string(kInfo);
    fs::create_directories(infoPath.parent_path());
    replaceFile(infoPath, info(present));
}

bool isLaidDown() {
    static const bool isDone = [] {
        try {
            layDown(Drives::instance().root() / "system");
            return true;
        } catch (const std::exception &) {
            return false; // Then the machine's own files are shown.
        }
    }();
    return isDone;
}

} // namespace

const char *SystemFiles::redirect(const char *path, std::string &storage) {
    if (path == nullptr || path[0] != '/' || (path[1] != 'p' && path[1] != 's')) {
        return path;
    }
    if (!Drives::instance().isActive() || (!isBelow(path, kInfo) && !isBelow(path, kScsiDevices)) ||
        !isLaidDown()) {
        return path;
    }
    storage = (Drives::instance().root() / "system").string() + path;
    return storage.c_str();
}

} // namespace recorder::preload
