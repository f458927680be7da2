// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/AudioFileList.h"

#include "scorch/support/NaturalOrder.h"
#include "scorch/support/Playlist.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <dirent.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

namespace fs = std::filesystem;

/// Playlists in playlists: deeper than people nest them, and short of what a stack takes.
constexpr int maximumPlaylistDepth = 16;
/// Entries of all playlists of one drop together. A disc has 99 tracks; lists that name each other
/// over and over end here.
constexpr std::size_t maximumPlaylistEntries = 100'000;

using FileId = std::pair<dev_t, ino_t>;

FileId idOf(const struct stat &status) {
    return {status.st_dev, status.st_ino};
}

std::string reasonFor(int error) {
    if (error == ENOENT || error == ENOTDIR) {
        return localized("There is no such file or folder.");
    }
    if (error == ELOOP) {
        return localized("It is a link that leads back to itself.");
    }
    return localized("It cannot be read (%@).", {std::generic_category().message(error)});
}

struct FolderEntry {
    std::string name;
    unsigned char type = DT_UNKNOWN; ///< Of the entry itself, not of what a link leads to.
};

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};

class Expander {
public:
    explicit Expander(const std::stop_token &stop) : stop_(stop) {}

    void take(const BurnFile &file);
    AudioFileList result() { return std::move(list_); }

private:
    void takePlaylist(const fs::path &path, FileId id);
    void takeEntry(const std::string &entry, const fs::path &playlist);
    void walk(const fs::path &folder);
    void walkEntry(const fs::path &path, unsigned char type);
    bool readFolder(const fs::path &folder, std::vector<FolderEntry> &entries);
    void refuse(const fs::path &path, std::string reason) {
        list_.refused.push_back({path, std::move(reason)});
    }
    std::size_t found() const { return list_.files.size() + list_.refused.size(); }

    const std::stop_token &stop_;
    AudioFileList list_;
    std::set<FileId> entered_;        ///< Folders of the walk that runs.
    std::vector<FileId> openLists_;   ///< From the outermost playlist to the one being read.
    std::size_t playlistEntries_ = 0; ///< Of all playlists so far.
};

void Expander::take(const BurnFile &file) {
    struct stat status {};
    if (stat(file.path.c_str(), &status) != 0) {
        refuse(file.path, reasonFor(errno));
    } else if (S_ISDIR(status.st_mode)) {
        const std::size_t before = found();
        entered_ = {idOf(status)};
        walk(file.path);
        if (found() == before && !stop_.stop_requested()) {
            refuse(file.path, localized("There are no songs in this folder."));
        }
    } else if (!S_ISREG(status.st_mode)) {
        refuse(file.path, localized("It is neither a file nor a folder."));
    } else if (isPlaylistName(file.path)) {
        takePlaylist(file.path, idOf(status));
    } else {
        list_.files.push_back(file);
    }
}

void Expander::takePlaylist(const fs::path &path, FileId id) {
    if (std::find(openLists_.begin(), openLists_.end(), id) != openLists_.end()) {
        return; // Its entries are being taken already.
    }
    if (openLists_.size() >= maximumPlaylistDepth) {
        refuse(path, localized("Too many playlists inside each other."));
        return;
    }
    const Result<std::string> text = readPlaylist(path);
    if (!text) {
        refuse(path, text.error().localizedDescription());
        return;
    }
    const std::vector<std::string> entries = parsePlaylist(*text);
    if (entries.empty()) {
        refuse(path, localized("The playlist names no files."));
        return;
    }
    openLists_.push_back(id);
    for (const std::string &entry : entries) {
        if (stop_.stop_requested()) {
            break;
        }
        if (++playlistEntries_ > maximumPlaylistEntries) {
            refuse(path, localized("The playlists name too many files."));
            break;
        }
        takeEntry(entry, path);
    }
    openLists_.pop_back();
}

void Expander::takeEntry(const std::string &entry, const fs::path &playlist) {
    if (isRemoteAddress(entry)) {
        refuse(entry, localized("It is an address on a network. Only files on this computer can "
                                "be burned."));
        return;
    }
    const std::vector<fs::path> meanings = meaningsOfEntry(entry, playlist.parent_path());
    const auto exists = [](const fs::path &path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0;
    };
    const auto meant = std::find_if(meanings.begin(), meanings.end(), exists);
    // Where no meaning is there, the check of the first one says why.
    take(BurnFile{meant != meanings.end() ? *meant : meanings.front(), {}, {}});
}

void Expander::walk(const fs::path &folder) {
    std::vector<FolderEntry> entries;
    if (!readFolder(folder, entries)) {
        return;
    }
    std::sort(entries.begin(), entries.end(), [](const FolderEntry &a, const FolderEntry &b) {
        return naturalLess(a.name, b.name);
    });
    for (const FolderEntry &entry : entries) {
        if (stop_.stop_requested()) {
            return;
        }
        walkEntry(folder / entry.name, entry.type);
    }
}

/// The depth of the recursion is bounded: a path that the system can look up has at most 2048
/// folders, and one that is longer is refused with the system's reason.
void Expander::walkEntry(const fs::path &path, unsigned char type) {
    if (type == DT_REG) {
        if (!isPlaylistName(path)) {
            list_.files.push_back({path, {}, {}});
        }
        return;
    }
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        refuse(path, reasonFor(errno));
    } else if (S_ISDIR(status.st_mode)) {
        if (entered_.insert(idOf(status)).second) {
            walk(path);
        }
    } else if (!S_ISREG(status.st_mode)) {
        refuse(path, localized("It is neither a file nor a folder."));
    } else if (!isPlaylistName(path)) {
        list_.files.push_back({path, {}, {}});
    }
}

bool Expander::readFolder(const fs::path &folder, std::vector<FolderEntry> &entries) {
    const std::unique_ptr<DIR, CloseFolder> handle(opendir(folder.c_str()));
    if (handle == nullptr) {
        refuse(folder, reasonFor(errno));
        return false;
    }
    errno = 0;
    while (const dirent *entry = readdir(handle.get())) {
        if (entry->d_name[0] != '.') {
            entries.push_back({entry->d_name, entry->d_type});
        }
        errno = 0;
    }
    if (errno != 0) {
        refuse(folder, reasonFor(errno));
    }
    return true;
}

} // namespace

AudioFileList expandAudioFiles(const std::vector<BurnFile> &files, const std::stop_token &stop) {
    Expander expander(stop);
    for (const BurnFile &file : files) {
        if (stop.stop_requested()) {
            break;
        }
        expander.take(file);
    }
    return expander.result();
}

} // namespace scorch
