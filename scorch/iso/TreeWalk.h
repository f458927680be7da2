// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <stop_token>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace scorch {

enum class EntryKind { file, folder, refused };

/// Something with a name in a folder, as a walk found it.
struct TreeEntry {
    std::string name; ///< Bytes, as in the file system.
    std::string path; ///< The same, from where the walk began; reading it follows links.
    EntryKind kind = EntryKind::refused;
    bool isLink = false;
    bool isRegularFile = false; ///< Also if it is refused.
    struct stat status {};      ///< Of what a link leads to. Not filled by WalkDetail::kinds.
    std::string refusal;        ///< Why it is refused: for a person, in their language.
};

enum class WalkDetail {
    kinds,     ///< Files and folders apart, as cheaply as the file system allows.
    everything ///< Their status as well, and whether they can be read.
};

/// Goes through a file or a folder with all that is in it, in natural order, and follows symbolic
/// links. Opens folders only, and keeps none open, so that neither depth nor a FIFO can harm it.
///
/// A link back to a folder that contains it is refused, and so is one to a folder that other links
/// have led to sixteen times: a few folders that link to each other can otherwise make a tree that
/// is endless for all practical purposes without containing a loop. One thread.
class TreeWalk {
public:
    enum class Step {
        file,    ///< entry() is a regular file.
        enter,   ///< entry() is a folder; its contents follow, then `leave`.
        leave,   ///< The contents of the folder entered last are through.
        refused, ///< entry() cannot be taken.
        end      ///< Nothing is left, or a stop was requested.
    };

    TreeWalk(const std::filesystem::path &start, WalkDetail detail, std::stop_token stop);

    /// Goes on by one entry. Blocks on the file system.
    Step next();

    /// What the last step was about. Valid until the next one.
    const TreeEntry &entry() const { return entry_; }

private:
    using FolderId = std::pair<dev_t, ino_t>;

    struct Frame {
        FolderId id;
        std::vector<TreeEntry> entries;
        std::size_t next = 0;
    };

    Step refuse(std::string reason);
    Step enter();
    Step takeEntry();
    std::string linkRefusal(const FolderId &id);
    bool contains(const FolderId &id);
    bool readEntries(int folder, Frame &frame);

    std::string start_;
    WalkDetail detail_;
    std::stop_token stop_;
    bool started_ = false;
    TreeEntry entry_;
    std::vector<Frame> frames_;
    std::vector<FolderId> above_; ///< The folders that contain the start; found when first needed.
    std::map<FolderId, int> timesFollowed_;
};

} // namespace scorch
