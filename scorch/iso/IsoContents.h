// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/iso/IsoTree.h"

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace scorch {

/// What stands behind the directories of an image: the contents of the files, each once however
/// many names it has, in the order of the list, with no gap between them. Immutable once made; any
/// thread.
class IsoContents {
public:
    struct File {
        IsoNodeRef node;
        std::string pathInImage;      ///< Its first name; bytes.
        std::int64_t firstSector = 0; ///< Counted from the first sector of the contents.
        std::int64_t sectors = 0;     ///< 0 for an empty file.
    };

    explicit IsoContents(const std::vector<IsoRootEntry> &entries);

    /// In the order of their contents, empty files included.
    const std::vector<File> &files() const { return files_; }

    /// The place in files() of a node of one of the entries (of a file).
    std::size_t placeOf(const IsoNode &node) const { return places_.at(identityOf(node)); }

    std::int64_t sectors() const { return sectors_; }

    /// The file that a sector belongs to, counted as in File; null outside the contents.
    const File *fileAt(std::int64_t sector) const;

private:
    /// Equal for two names of one file. Size and time belong to it: a file that changed between two
    /// scans is not the same, and at least one of the two will be found out.
    using Identity = std::tuple<dev_t, ino_t, std::uint64_t, std::int64_t, std::int64_t>;

    static Identity identityOf(const IsoNode &node);
    void add(const IsoNodeRef &node, const std::string &path);

    std::vector<File> files_;
    std::map<Identity, std::size_t> places_;
    std::int64_t sectors_ = 0;
};

} // namespace scorch
