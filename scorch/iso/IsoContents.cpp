// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/IsoContents.h"

#include "scorch/support/DiscContent.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace scorch {
namespace {

/// A folder on the way to the present file, and how far its children have been taken.
struct OpenFolder {
    const IsoNode *folder;
    std::string path;
    std::size_t next = 0;
};

} // namespace

IsoContents::IsoContents(const std::vector<IsoRootEntry> &entries) {
    std::vector<OpenFolder> open;
    for (const IsoRootEntry &entry : entries) {
        if (!entry.node->isFolder) {
            add(entry.node, entry.name);
            continue;
        }
        open.push_back({entry.node.get(), entry.name});
        while (!open.empty()) {
            OpenFolder &top = open.back();
            if (top.next == top.folder->children.size()) {
                open.pop_back();
                continue;
            }
            const IsoNodeRef &child = top.folder->children[top.next++];
            std::string path = top.path + '/' + child->name;
            if (child->isFolder) {
                open.push_back({child.get(), std::move(path)});
            } else {
                add(child, path);
            }
        }
    }
}

IsoContents::Identity IsoContents::identityOf(const IsoNode &node) {
    return {node.device, node.inode, node.size, node.mtime, node.mtimeNanoseconds};
}

void IsoContents::add(const IsoNodeRef &node, const std::string &path) {
    if (!places_.try_emplace(identityOf(*node), files_.size()).second) {
        return;
    }
    const auto sectors = static_cast<std::int64_t>(node->size / dataSectorBytes +
                                                   (node->size % dataSectorBytes != 0 ? 1 : 0));
    files_.push_back({node, path, sectors_, sectors});
    sectors_ += sectors;
}

const IsoContents::File *IsoContents::fileAt(std::int64_t sector) const {
    // The last of the files that begin at or before the sector: empty ones share their beginning
    // with the next that is not.
    const auto behind = std::upper_bound(
        files_.begin(), files_.end(), sector,
        [](std::int64_t wanted, const File &file) { return wanted < file.firstSector; });
    if (behind == files_.begin()) {
        return nullptr;
    }
    const File &file = *std::prev(behind);
    return sector < file.firstSector + file.sectors ? &file : nullptr;
}

} // namespace scorch
