// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/TargetFolder.h"
#include "scorch/support/FileDescriptor.h"
#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>

namespace scorch {

/// A file that is being written under a hidden temporary name; its destructor removes it, whatever
/// its name is by then, unless keep was called. Locked (flock) as long as it is open, which tells
/// it from one that a dead process left behind. One thread.
class TemporaryImageFile {
public:
    /// Whether a name is one that create makes.
    static bool isName(std::string_view name);

    /// A new, empty file in `folder`, which outlives it.
    static Result<std::unique_ptr<TemporaryImageFile>> create(const TargetFolder &folder);

    ~TemporaryImageFile();
    TemporaryImageFile(const TemporaryImageFile &) = delete;
    TemporaryImageFile &operator=(const TemporaryImageFile &) = delete;

    /// Takes the room for a file of that size, where the file system can.
    Result<void> reserve(std::uint64_t bytes);

    /// Writes behind what was written before and starts to bring it to the device early, so that
    /// little is left for flush. Notices a stop request at each megabyte.
    Outcome<> append(std::span<const std::byte> bytes, const std::stop_token &stop);

    /// Empties the file.
    Result<void> clear();

    /// Brings everything to the device. Notices a stop request after each two megabytes; only the
    /// file system's own book-keeping at the end cannot be interrupted.
    Outcome<> flush(const std::stop_token &stop);

    /// Forgets what memory holds of the file, so that it is read from the device. After flush.
    void dropCache();

    /// Fills `buffer` from a position in bytes; an error if the file is shorter.
    Result<void> read(std::uint64_t position, std::span<std::byte> buffer);

    const std::string &name() const { return name_; }

    /// Gives the file its name. 0, or an errno value; EEXIST where the name is taken.
    int renameTo(const std::string &name);
    /// Takes the name back: the file is a temporary one again.
    void takeBack();
    /// The file is complete: the destructor leaves it alone.
    void keep() { temporary_ = false; }

private:
    TemporaryImageFile(const TargetFolder &folder, std::string name, FileDescriptor descriptor);
    Result<void> startWriteback();
    Outcome<> settle(std::uint64_t from, std::uint64_t to, const std::stop_token &stop);
    ScorchError failure(int error, const char *step) const;

    const TargetFolder &folder_;
    std::string temporaryName_;
    std::string name_;
    FileDescriptor descriptor_;
    bool temporary_ = true;
    std::uint64_t written_ = 0;   ///< Bytes.
    std::uint64_t submitted_ = 0; ///< Bytes whose way to the device has been started.
    std::uint64_t settled_ = 0;   ///< Bytes that have been waited for.
};

} // namespace scorch
