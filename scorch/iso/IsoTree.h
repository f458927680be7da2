// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/AddFilesResult.h"
#include "scorch/support/Result.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <sys/types.h>
#include <vector>

namespace scorch {

/// A regular file or a folder as it was found when it was added. Immutable once scanned, so that
/// any number of threads may read it.
struct IsoNode {
    std::string name;           ///< Bytes, as in the file system.
    std::filesystem::path path; ///< Where to read it (links followed).
    bool isFolder = false;
    std::uint64_t size = 0;            ///< Bytes; 0 for a folder.
    std::int64_t mtime = 0;            ///< Seconds since 1970, UTC.
    std::int64_t mtimeNanoseconds = 0; ///< Behind the second: tells two saves in one second apart.
    mode_t mode = 0;                   ///< Permission bits.
    uid_t uid = 0;
    gid_t gid = 0;
    dev_t device = 0; ///< With `inode`: what makes two names the same file.
    ino_t inode = 0;
    std::vector<std::shared_ptr<const IsoNode>> children; ///< Folders only, in natural order.
};

using IsoNodeRef = std::shared_ptr<const IsoNode>;

/// An entry of the image's root: what it holds and the name it has there.
struct IsoRootEntry {
    IsoNodeRef node;
    std::string name;
};

/// Told by a scan of each regular file as it is looked at, whether it is taken or not: as often as
/// countFiles counts. Not of folders.
using ScanProgress = std::function<void(const std::filesystem::path &file)>;

/// What a scan of one dropped path found.
struct IsoScan {
    IsoNodeRef node;                  ///< Null if the path itself is refused.
    std::vector<RefusedFile> refused; ///< The path itself, or entries inside the folder.
    std::uint64_t files = 0;          ///< Regular files in the tree.
    /// Never less than what the tree adds to an image, in bytes: for a running total.
    std::uint64_t upperBoundBytes = 0;
};

/// How many regular files a path holds, links followed as scanPath follows them: to know the count
/// before the first report. Files that a scan will refuse for want of permission are counted. Ends
/// early, with what was counted, after a stop request. Blocks; any thread.
std::uint64_t countFiles(const std::filesystem::path &path, const std::stop_token &stop);

/// Takes a file or folder in: regular files and folders, symbolic links followed once (a loop
/// neither hangs nor repeats); unreadable files, dangling links, FIFOs, sockets and devices are
/// refused, a folder is taken without them. Hidden files belong to a folder. Nothing is opened but
/// folders. The only interruption is a stop request: what cannot be taken is in the result. Blocks;
/// any thread.
Outcome<IsoScan> scanPath(const std::filesystem::path &path, const ScanProgress &progress,
                          const std::stop_token &stop);

} // namespace scorch
