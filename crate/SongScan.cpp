// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/SongScan.h"

#include "crate/SongTags.h"

#include <algorithm>
#include <set>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace crate {

namespace {

/// One scan: the folders still to visit, and those seen, by device and inode.
class Scan {
public:
    Scan(std::stop_token stop, const std::function<void(LibrarySong)> &found)
        : stop_(std::move(stop)), found_(found) {}

    std::error_code run(const std::filesystem::path &folder) {
        remember(folder);
        const std::error_code error = visit(folder);
        while (!waiting_.empty() && !stop_.stop_requested()) {
            const std::filesystem::path next = std::move(waiting_.back());
            waiting_.pop_back();
            if (remember(next)) {
                // What cannot be read below holds no songs for this user.
                static_cast<void>(visit(next));
            }
        }
        return error;
    }

private:
    /// Whether the folder is seen for the first time.
    bool remember(const std::filesystem::path &folder) {
        struct stat status {};
        return stat(folder.c_str(), &status) == 0 &&
               seen_.emplace(status.st_dev, status.st_ino).second;
    }

    /// Reads the songs in `folder` and queues its folders, both in the order of their names.
    std::error_code visit(const std::filesystem::path &folder) {
        std::vector<std::filesystem::path> songs;
        std::vector<std::filesystem::path> folders;
        std::error_code error;
        for (std::filesystem::directory_iterator at(folder, error), end;
             !error && at != end && !stop_.stop_requested(); at.increment(error)) {
            const std::string name = at->path().filename().string();
            std::error_code ignored;
            if (name.starts_with('.')) {
                continue;
            }
            if (at->is_directory(ignored)) {
                folders.push_back(at->path());
            } else if (isSongName(name) && at->is_regular_file(ignored)) {
                songs.push_back(at->path());
            }
        }
        std::sort(songs.begin(), songs.end());
        for (const std::filesystem::path &song : songs) {
            if (stop_.stop_requested()) {
                return {};
            }
            const std::string &bytes = song.native();
            found_(readSong(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()))));
        }
        std::sort(folders.rbegin(), folders.rend());
        std::move(folders.begin(), folders.end(), std::back_inserter(waiting_));
        return error;
    }

    std::stop_token stop_;
    const std::function<void(LibrarySong)> &found_;
    std::vector<std::filesystem::path> waiting_; ///< The next one last.
    std::set<std::pair<dev_t, ino_t>> seen_;
};

} // namespace

std::error_code scanSongs(const std::filesystem::path &folder, std::stop_token stop,
                          const std::function<void(LibrarySong)> &found) {
    return Scan(std::move(stop), found).run(folder);
}

} // namespace crate
