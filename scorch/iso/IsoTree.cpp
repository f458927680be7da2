// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/IsoTree.h"

#include "scorch/iso/TreeWalk.h"
#include "scorch/support/DiscContent.h"

#include <memory>
#include <utility>
#include <vector>

namespace scorch {
namespace {

/// What directory records of one entry can take at most: one of at most 254 bytes in each of the
/// two trees (ISO 9660 and Joliet), the share of unused bytes at the end of a block, which a record
/// never crosses, and the continuation of a long Rock Ridge name.
constexpr std::uint64_t recordBytes = 1536;

/// What a folder takes besides: the rounding of its three areas (records, their continuations and
/// Joliet records) to blocks, and its four path table records.
constexpr std::uint64_t folderBytes = 3 * dataSectorBytes + 512;

/// One more entry can make each area of the root longer by a block.
constexpr std::uint64_t rootBytes = 3 * dataSectorBytes;

/// The share of the path tables, which are rounded up to blocks: four of them.
constexpr std::uint64_t pathTableBytes = 4 * dataSectorBytes;

/// A file of several extents has a record in each tree for every one.
constexpr std::uint64_t extentBytes = std::uint64_t{2048} * 1024 * 1024;

std::uint64_t contentBytes(std::uint64_t size) {
    return (size + dataSectorBytes - 1) / dataSectorBytes * dataSectorBytes;
}

std::shared_ptr<IsoNode> makeNode(const TreeEntry &entry) {
    auto node = std::make_shared<IsoNode>();
    node->name = entry.name;
    node->path = entry.path;
    node->isFolder = entry.kind == EntryKind::folder;
    node->size = node->isFolder ? 0 : static_cast<std::uint64_t>(entry.status.st_size);
    node->mtime = entry.status.st_mtim.tv_sec;
    node->mtimeNanoseconds = entry.status.st_mtim.tv_nsec;
    node->mode = entry.status.st_mode & 07777;
    node->uid = entry.status.st_uid;
    node->gid = entry.status.st_gid;
    node->device = entry.status.st_dev;
    node->inode = entry.status.st_ino;
    return node;
}

/// Puts what a walk finds together.
class ScanBuilder {
public:
    IsoScan take() && { return std::move(scan_); }

    void addFile(const TreeEntry &entry) {
        const std::shared_ptr<IsoNode> node = makeNode(entry);
        add(node);
        ++scan_.files;
        scan_.upperBoundBytes +=
            contentBytes(node->size) + recordBytes * (1 + node->size / extentBytes);
    }

    void enterFolder(const TreeEntry &entry) {
        const std::shared_ptr<IsoNode> node = makeNode(entry);
        add(node);
        open_.push_back(node);
        scan_.upperBoundBytes += recordBytes + folderBytes;
    }

    void leaveFolder() { open_.pop_back(); }

    void refuse(const TreeEntry &entry) { scan_.refused.push_back({entry.path, entry.refusal}); }

private:
    void add(const std::shared_ptr<IsoNode> &node) {
        if (open_.empty()) {
            scan_.node = node;
            scan_.upperBoundBytes += rootBytes + (node->isFolder ? pathTableBytes : 0);
        } else {
            open_.back()->children.push_back(node);
        }
    }

    IsoScan scan_;
    std::vector<std::shared_ptr<IsoNode>> open_; ///< The folders around the present entry.
};

} // namespace

std::uint64_t countFiles(const std::filesystem::path &path, const std::stop_token &stop) {
    TreeWalk walk(path, WalkDetail::kinds, stop);
    std::uint64_t files = 0;
    for (auto step = walk.next(); step != TreeWalk::Step::end; step = walk.next()) {
        files += step != TreeWalk::Step::leave && walk.entry().isRegularFile ? 1 : 0;
    }
    return files;
}

Outcome<IsoScan> scanPath(const std::filesystem::path &path, const ScanProgress &progress,
                          const std::stop_token &stop) {
    TreeWalk walk(path, WalkDetail::everything, stop);
    ScanBuilder builder;
    for (auto step = walk.next(); step != TreeWalk::Step::end; step = walk.next()) {
        const TreeEntry &entry = walk.entry();
        if (progress && step != TreeWalk::Step::leave && entry.isRegularFile) {
            progress(entry.path);
        }
        switch (step) {
        case TreeWalk::Step::file:
            builder.addFile(entry);
            break;
        case TreeWalk::Step::enter:
            builder.enterFolder(entry);
            break;
        case TreeWalk::Step::leave:
            builder.leaveFolder();
            break;
        case TreeWalk::Step::refused:
            builder.refuse(entry);
            break;
        case TreeWalk::Step::end:
            break;
        }
    }
    if (stop.stop_requested()) {
        // Named, because gcc 12 wrongly finds the move of a temporary uninitialised with
        // sanitizers.
        const Interruption stopped = Cancelled{};
        return stopped;
    }
    return std::move(builder).take();
}

} // namespace scorch
