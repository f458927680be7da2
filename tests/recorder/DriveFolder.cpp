// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/DriveFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/file.h>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace recorder {

DriveFolder::DriveFolder(std::filesystem::path path) : path_(std::move(path)) {
    const Lock lock(*this);
    const Descriptor file = openFile(path_ / "memory", O_RDWR | O_CREAT);
    if (!file.isOpen() || ftruncate(file.get(), sizeof(DriveMemory)) != 0) {
        return;
    }
    void *mapped =
        mmap(nullptr, sizeof(DriveMemory), PROT_READ | PROT_WRITE, MAP_SHARED, file.get(), 0);
    if (mapped == MAP_FAILED) {
        return;
    }
    memory_ = static_cast<DriveMemory *>(mapped);
    if (memory_->layout != kLayout) {
        new (memory_) DriveMemory();
        memory_->layout = kLayout;
    }
}

DriveFolder::~DriveFolder() {
    if (memory_ != nullptr) {
        munmap(memory_, sizeof(DriveMemory));
    }
}

DriveFolder::Lock::Lock(const DriveFolder &folder)
    : file_(openFile(folder.path() / "lock", O_RDWR | O_CREAT)) {
    while (flock(file_.get(), LOCK_EX) != 0 && errno == EINTR) {
    }
}

DriveFolder::Lock::~Lock() {
    flock(file_.get(), LOCK_UN);
}

} // namespace recorder
