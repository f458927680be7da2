// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/Command.h"
#include "tests/recorder/Device.h"
#include "tests/recorder/DriveFolder.h"

#include <filesystem>
#include <string>

namespace recorder {

/// A CD recorder, as its commands show it (MMC-5, SPC-3). Several objects, in any processes, may
/// stand for the same folder: each command takes the drive's lock, finds what the others did, and
/// leaves its own changes in the folder. Any thread.
class Recorder {
public:
    /// The folder must exist.
    explicit Recorder(const std::filesystem::path &folder);

    bool isOpen() const { return folder_.isOpen(); }

    /// Carries out one command, waiting for the lock only. Never throws but for lack of memory. A
    /// delay that the answer asks for is the caller's to wait.
    Answer execute(ByteView cdb, ByteView sent = {});

    /// The behaviour that holds now, with what a hand did since carried out.
    Faults faults();

    /// A process opens the drive: a recording whose process died is broken off, as a drive does
    /// whose host went silent.
    void attach();

    /// Descriptions of files that could not be understood; empty if all is well.
    const std::string &complaint() const { return complaint_; }

private:
    void refresh();
    void readProfile();
    void readControl();
    void obeyHand();
    void reloadDisc();
    void finish(Device &device);
    Answer dispatch(Device &device, const Command &command);
    void log(const Command &command, const Answer &answer) const;

    DriveFolder folder_;
    DriveProfile profile_;
    Faults faults_;
    FileStamp profileStamp_;
    FileStamp controlStamp_;
    bool isFresh_ = true;
    std::uint32_t generation_ = 0;
    DiscStore store_{{}};
    std::optional<Disc> disc_;
    std::string complaint_;
};

} // namespace recorder
