// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/udev/UdevWatcher.h"

#include "scorch/support/WorkerThread.h"
#include "scorch/udev/UdevHandles.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace scorch {

struct UdevConnection {
    UdevHandle<udev> context;
    UdevHandle<udev_monitor> monitor; ///< Receives from the moment it was made.
};

namespace {

std::string textOf(const char *text) {
    return text != nullptr ? text : "";
}

/// "sr" and a number: the optical drives that take commands.
bool isOpticalDrive(udev_device *device) {
    const std::string name = textOf(udev_device_get_sysname(device));
    return name.size() > 2 && name.starts_with("sr") &&
           std::all_of(name.begin() + 2, name.end(),
                       [](unsigned char character) { return std::isdigit(character) != 0; });
}

/// What the kernel read from the drive when it came. The parent belongs to the device.
DriveIdentity identityOf(udev_device *device) {
    udev_device *const drive =
        udev_device_get_parent_with_subsystem_devtype(device, "scsi", "scsi_device");
    if (drive == nullptr) {
        return {};
    }
    const auto attribute = [drive](const char *name) {
        return driveText(textOf(udev_device_get_sysattr_value(drive, name)));
    };
    return {
        .vendor = attribute("vendor"), .model = attribute("model"), .revision = attribute("rev")};
}

FoundDevice foundDevice(udev_device *device) {
    return {.node = textOf(udev_device_get_devnode(device)), .identity = identityOf(device)};
}

int numberOf(const FoundDevice &device) {
    const std::string name = device.node.filename().native();
    return name.size() > 2 ? std::atoi(name.c_str() + 2) : 0;
}

bool isSet(udev_device *device, const char *property) {
    return textOf(udev_device_get_property_value(device, property)) == "1";
}

/// A number in a file of the kernel's; nothing where there is none.
std::optional<long> numberIn(const std::filesystem::path &path) {
    std::ifstream file(path);
    long number = 0;
    if (file >> number) {
        return number;
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<UdevWatcher> UdevWatcher::create(const std::filesystem::path &control) {
    if (::access(control.c_str(), F_OK) != 0) {
        return nullptr; // libudev would connect all the same, and never hear anything.
    }
    auto connection = std::make_unique<UdevConnection>();
    connection->context.reset(udev_new());
    if (connection->context == nullptr) {
        return nullptr;
    }
    connection->monitor.reset(udev_monitor_new_from_netlink(connection->context.get(), "udev"));
    udev_monitor *const monitor = connection->monitor.get();
    // Listening begins before the search, so that nothing is missed between the two.
    if (monitor == nullptr ||
        udev_monitor_filter_add_match_subsystem_devtype(monitor, "block", "disk") < 0 ||
        udev_monitor_enable_receiving(monitor) < 0) {
        return nullptr;
    }
    FileDescriptor end(::eventfd(0, EFD_CLOEXEC));
    if (!end.valid()) {
        return nullptr;
    }
    return std::unique_ptr<UdevWatcher>(new UdevWatcher(std::move(connection), std::move(end)));
}

UdevWatcher::UdevWatcher(std::unique_ptr<UdevConnection> connection, FileDescriptor end)
    : connection_(std::move(connection)), end_(std::move(end)) {}

UdevWatcher::~UdevWatcher() {
    if (thread_.joinable()) {
        const std::uint64_t one = 1;
        while (::write(end_.get(), &one, sizeof one) < 0 && errno == EINTR) {
        }
        thread_.join();
    }
}

std::vector<FoundDevice> UdevWatcher::search(Observer observer) {
    observer_ = std::move(observer);
    const UdevHandle<udev_enumerate> enumerate(udev_enumerate_new(connection_->context.get()));
    std::vector<FoundDevice> found;
    if (enumerate != nullptr) {
        udev_enumerate_add_match_subsystem(enumerate.get(), "block");
        udev_enumerate_add_match_sysname(enumerate.get(), "sr*");
        udev_enumerate_scan_devices(enumerate.get());
        udev_list_entry *entry = nullptr;
        udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(enumerate.get())) {
            const UdevHandle<udev_device> device(udev_device_new_from_syspath(
                connection_->context.get(), udev_list_entry_get_name(entry)));
            if (device != nullptr && isOpticalDrive(device.get()) &&
                udev_device_get_devnode(device.get()) != nullptr) {
                found.push_back(foundDevice(device.get()));
            }
        }
    }
    std::sort(found.begin(), found.end(), [](const FoundDevice &left, const FoundDevice &right) {
        return numberOf(left) < numberOf(right);
    });
    for (const FoundDevice &device : found) {
        known_.insert(device.node);
    }
    try {
        thread_ = startWorkerThread("scorch-udev", [this] { follow(); });
    } catch (const std::system_error &) {
        // A system that has no thread left: the drives that are there can be used all the same.
    }
    return found;
}

void UdevWatcher::follow() {
    std::array<pollfd, 2> waits = {pollfd{.fd = end_.get(), .events = POLLIN, .revents = 0},
                                   pollfd{.fd = udev_monitor_get_fd(connection_->monitor.get()),
                                          .events = POLLIN,
                                          .revents = 0}};
    while (true) {
        if (::poll(waits.data(), waits.size(), -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            return;
        }
        if (waits[0].revents != 0) {
            return;
        }
        if (waits[1].revents != 0) {
            handleEvent();
        }
    }
}

/// The events of a drive that the search has found already, or that has gone already, come too:
/// what counts is what the observer knows.
void UdevWatcher::handleEvent() {
    const UdevHandle<udev_device> device(udev_monitor_receive_device(connection_->monitor.get()));
    if (device == nullptr || !isOpticalDrive(device.get()) ||
        udev_device_get_devnode(device.get()) == nullptr) {
        return;
    }
    const std::string action = textOf(udev_device_get_action(device.get()));
    const FoundDevice found = foundDevice(device.get());
    if (action == "remove") {
        if (known_.erase(found.node) != 0) {
            observer_.disappeared(found.node);
        }
    } else if (known_.insert(found.node).second) {
        observer_.appeared(found);
    } else if (action == "change") {
        const bool isCertain = isSet(device.get(), "DISK_MEDIA_CHANGE");
        observer_.mediumChanged(found.node, isCertain ? MediumNews::changed : MediumNews::perhaps);
    }
}

bool UdevWatcher::tellsOfMedia(const std::filesystem::path &node) const {
    const std::filesystem::path disk = "/sys/class/block" / node.filename();
    const std::optional<long> own = numberIn(disk / "events_poll_msecs");
    if (own && *own >= 0) {
        return *own > 0;
    }
    const auto common = numberIn("/sys/module/block/parameters/events_dfl_poll_msecs");
    return common && *common > 0;
}

} // namespace scorch
