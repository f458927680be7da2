// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/preload/Drives.h"

namespace recorder::preload {

/// What the kernel's driver for CD drives makes of a drive: commands of its own, error numbers.
class KernelDriver {
public:
    explicit KernelDriver(int number) : number_(number) {}

    /// Carries out a command and waits as long as the drive is said to take; a program's time-out
    /// shortens the wait for a drive that does not answer. Signals are held back meanwhile.
    Answer execute(ByteView cdb, ByteView sent, unsigned timeoutMs) const;

    /// A command of the kernel's own, tried again after a unit attention. 0 or an error number.
    int command(std::initializer_list<int> cdb, Bytes &data) const;
    int command(std::initializer_list<int> cdb) const;

    /// CDS_DISC_OK and its like.
    int driveStatus() const;
    /// CDS_AUDIO and its like.
    int discStatus() const;

    /// The checks of an open(): error number or 0.
    int mayOpen(int flags) const;

    /// Bytes of the device as data; 0 without a data disc.
    std::int64_t size() const;
    /// Reads data as a file's. Less than asked at the end or in front of a block that cannot be
    /// read; -1 with errno if nothing could be read.
    ssize_t read(void *buffer, std::size_t count, std::int64_t offset) const;

    /// An error number for an answer, as the kernel gives it; 0 for a good one.
    static int errorOf(const Answer &answer);

private:
    int number_;
};

} // namespace recorder::preload
