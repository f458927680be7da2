// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/preload/Drives.h"

#include "tests/recorder/TextLines.h"
#include "tests/recorder/preload/RealCalls.h"

#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <pthread.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace recorder::preload {

namespace {

constexpr unsigned kCdRomMajor = 11;

std::optional<int> numberBehind(std::string_view path, std::string_view prefix) {
    int number = 0;
    if (path.substr(0, prefix.size()) != prefix ||
        !parseNumber(path.substr(prefix.size()), number) || number < 0 || number >= Drives::kMost) {
        return {};
    }
    return number;
}

} // namespace

Drives &Drives::instance() {
    // Never destroyed: threads and exit handlers of the program use it to the last.
    static Drives *const drives = new Drives();
    return *drives;
}

Drives::Drives() {
    const char *root = std::getenv("CD_RECORDER");
    if (root == nullptr || *root == '\0') {
        return;
    }
    root_ = root;
    // Descriptors may have been inherited.
    for (int number = 0; number < kMost; ++number) {
        prepareNode(number);
    }
}

std::filesystem::path Drives::folder(int number) const {
    return root_ / ("sr" + std::to_string(number));
}

bool Drives::isLink(const char *path) {
    const std::string_view name = path;
    return name == "/dev/cdrom" || numberBehind(name, "/dev/scd").has_value();
}

std::optional<int> Drives::numberOfPath(const char *path) const {
    if (!isActive() || path == nullptr) {
        return {};
    }
    const std::string_view name = path;
    if (name == "/dev/cdrom") {
        return 0;
    }
    const std::optional<int> number = numberBehind(name, "/dev/sr");
    return number ? number : numberBehind(name, "/dev/scd");
}

std::optional<int> Drives::numberOfDescriptor(int descriptor) const {
    struct stat status {};
    if (!isActive() || real().fstat(descriptor, &status) != 0 || status.st_dev != device_) {
        return {};
    }
    for (std::size_t number = 0; number < nodes_.size(); ++number) {
        if (nodes_[number] == status.st_ino) {
            return static_cast<int>(number);
        }
    }
    return {};
}

bool Drives::prepareNode(int number) {
    const auto index = static_cast<std::size_t>(number);
    if (nodes_[index] != 0) {
        return true;
    }
    const std::string path = (folder(number) / "node").string();
    const Descriptor node(real().open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    struct stat status {};
    if (!node.isOpen() || real().fstat(node.get(), &status) != 0) {
        return false;
    }
    device_ = status.st_dev;
    nodes_[index] = status.st_ino;
    return true;
}

Recorder *Drives::recorder(int number) {
    std::atomic<Recorder *> &slot = recorders_[static_cast<std::size_t>(number)];
    Recorder *existing = slot;
    if (existing != nullptr) {
        return existing;
    }
    struct stat status {};
    const std::string path = folder(number).string();
    if (real().fstatat(AT_FDCWD, path.c_str(), &status, 0) != 0) {
        return nullptr;
    }
    auto created = std::make_unique<Recorder>(path);
    if (slot.compare_exchange_strong(existing, created.get())) {
        return created.release(); // Kept for the life of the process.
    }
    return existing;
}

bool Drives::isPresent(int number) {
    Recorder *drive = recorder(number);
    return drive != nullptr && !drive->faults().vanished && prepareNode(number);
}

void Drives::describe(int number, struct stat &status) {
    status.st_mode = S_IFBLK | 0660;
    status.st_rdev = makedev(kCdRomMajor, static_cast<unsigned>(number));
    status.st_size = 0;
    status.st_blocks = 0;
}

SignalsHeld::SignalsHeld() {
    sigset_t all{};
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
}

SignalsHeld::~SignalsHeld() {
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

} // namespace recorder::preload
