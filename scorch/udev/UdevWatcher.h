// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/mmc/DeviceWatcher.h"
#include "scorch/support/FileDescriptor.h"

#include <filesystem>
#include <memory>
#include <set>
#include <thread>

namespace scorch {

struct UdevConnection;

/// Finds drives in udev's database and follows them by its events, for which nothing has to be
/// opened or asked. The thread "scorch-udev" waits for events from the search to the end.
class UdevWatcher final : public DeviceWatcher {
public:
    /// Null where udev does not run, or cannot be listened to. `control`: a file that is there as
    /// long as it runs.
    static std::unique_ptr<UdevWatcher>
    create(const std::filesystem::path &control = "/run/udev/control");
    ~UdevWatcher() override;

    std::vector<FoundDevice> search(Observer observer) override;

    /// udev tells of discs where the kernel looks for them from time to time.
    bool tellsOfMedia(const std::filesystem::path &node) const override;

    /// Nothing to do: the event is on its way.
    void suspect(const std::filesystem::path & /*node*/) override {}

private:
    UdevWatcher(std::unique_ptr<UdevConnection> connection, FileDescriptor end);

    void follow();
    void handleEvent();

    const std::unique_ptr<UdevConnection> connection_;
    const FileDescriptor end_; ///< An eventfd, readable when the thread is to end.
    Observer observer_;
    std::set<std::filesystem::path> known_; ///< The searching thread's first, then the watcher's.
    std::thread thread_;
};

} // namespace scorch
