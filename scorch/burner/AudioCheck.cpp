// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/AudioCheck.h"

#include "scorch/support/Utf8.h"

#include <chrono>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

namespace scorch {
namespace {

/// How long a joined list of files may wait to be noticed while one song takes its time.
constexpr auto noticePatience = std::chrono::milliseconds(50);

std::string fileTitle(const std::filesystem::path &path) {
    const std::string stem = path.stem().string();
    return readableText(stem.empty() ? path.filename().string() : stem);
}

const std::string &known(const std::string &clients, const std::string &tags) {
    return clients.empty() ? tags : clients;
}

std::shared_ptr<AudioItem> makeItem(const BurnFile &file, const AudioInfo &info) {
    auto item = std::make_shared<AudioItem>();
    item->displayName = songDisplayName(file, info);
    item->path = file.path;
    item->artist = known(file.artist, info.artist);
    item->title = known(file.title, info.title);
    item->samples = info.samples;
    item->sectors = sectorsForSamples(info.samples);
    return item;
}

class SongCheck {
public:
    SongCheck(const AudioCheckServices &services, CheckQueue &queue, CheckSink &sink,
              const std::stop_token &stop)
        : services_(services),
          queue_(queue),
          sink_(sink),
          stop_(stop),
          pool_(services.probe, services.threads, stop) {}

    CheckRefusals run();

private:
    void takeFiles();
    void reportNext();
    void settle(const ProbePool::Probed &probed);

    const AudioCheckServices &services_;
    CheckQueue &queue_;
    CheckSink &sink_;
    const std::stop_token &stop_;
    std::int64_t reported_ = -1; ///< Files that had been looked at when the last report was made.
    CheckRefusals refusals_;
    ProbePool pool_;
};

CheckRefusals SongCheck::run() {
    while (!stop_.stop_requested()) {
        takeFiles();
        if (pool_.empty()) {
            break;
        }
        reportNext();
        if (const auto probed = pool_.takeNext(noticePatience)) {
            ++queue_.looked;
            settle(*probed);
        }
    }
    return std::move(refusals_);
}

/// All that has been added by now, so that the count is known before it is reported.
void SongCheck::takeFiles() {
    while (!stop_.stop_requested()) {
        auto files = pool_.empty() ? queue_.takeOrClose() : queue_.take();
        if (!files) {
            return;
        }
        AudioFileList list = services_.expand(*files, stop_);
        std::move(list.refused.begin(), list.refused.end(),
                  std::back_inserter(refusals_.incompatibleFiles));
        queue_.count += static_cast<std::int64_t>(list.files.size());
        pool_.add(std::move(list.files));
    }
}

void SongCheck::reportNext() {
    const bool isNews = reported_ != queue_.looked;
    if (isNews && mayReport(queue_, services_.clock())) {
        reported_ = queue_.looked;
        const std::string name = readableText(pool_.next().filename().native());
        sink_.progressed({name, queue_.looked + 1, queue_.count});
    }
}

void SongCheck::settle(const ProbePool::Probed &probed) {
    if (const auto *info = std::get_if<AudioInfo>(&probed.probe)) {
        sink_.accepted(makeItem(probed.file, *info));
    } else if (const auto *refusal = std::get_if<AudioRefusal>(&probed.probe)) {
        auto &refused = refusal->kind == RefusalKind::protectedFile ? refusals_.protectedFiles
                                                                    : refusals_.incompatibleFiles;
        refused.push_back({probed.file.path, refusal->reason});
    }
}

} // namespace

CheckRefusals checkSongs(const AudioCheckServices &services, CheckQueue &queue, CheckSink &sink,
                         const std::stop_token &stop) {
    return SongCheck(services, queue, sink, stop).run();
}

std::string songDisplayName(const BurnFile &file, const AudioInfo &info) {
    const std::string &artist = known(file.artist, info.artist);
    const std::string &title = known(file.title, info.title);
    if (title.empty()) {
        return fileTitle(file.path);
    }
    return artist.empty() ? title : artist + " - " + title;
}

} // namespace scorch
