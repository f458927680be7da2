// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/FileDescriptor.h"
#include "scorch/support/Result.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace scorch {

/// The folder that disc images are written to, held open: a recording stays in it even if somebody
/// renames it meanwhile. One thread.
class TargetFolder {
public:
    /// Opens the folder. With `create` one that is missing is made, if its parent exists.
    static Result<TargetFolder> open(const std::filesystem::path &path, bool create);

    const std::filesystem::path &path() const { return path_; }
    int descriptor() const { return descriptor_.get(); }

    /// Bytes that a file name may have here.
    std::size_t maximumNameBytes() const { return maximumNameBytes_; }
    /// Bytes that may still be written here. The largest value where the system does not say.
    std::uint64_t availableBytes() const;

    bool contains(const std::string &name) const;

    /// Renames a file of this folder; never overwrites. 0, or an errno value: EEXIST where the
    /// new name is taken. Works on file systems that know no such operation too.
    int renameWithoutReplacing(const std::string &from, const std::string &to) const;

    /// Renames a file of this folder. 0, or an errno value.
    int rename(const std::string &from, const std::string &to) const;

    /// Removes a file of this folder, if it is there.
    void remove(const std::string &name) const;

    /// Brings the names in the folder to the device. 0, or an errno value.
    int flush() const;

    /// Removes temporary files that a process left behind when it died. A file that a living
    /// process writes is locked and stays. What cannot be removed is left alone.
    void removeStaleFiles() const;

private:
    TargetFolder(std::filesystem::path path, FileDescriptor descriptor);

    std::filesystem::path path_;
    FileDescriptor descriptor_;
    std::size_t maximumNameBytes_ = 0;
};

} // namespace scorch
