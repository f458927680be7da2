// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/BurnerHarness.h"

#include "scorch/burner/AudioKind.h"
#include "tests/scorch/drive/FakeContent.h"

#include <algorithm>
#include <utility>

using namespace scorch;

namespace {

class OneDriveSource final : public DriveSource {
public:
    explicit OneDriveSource(std::shared_ptr<Drive> drive) : drive_(std::move(drive)) {}
    std::vector<std::shared_ptr<Drive>> search(Observer /*observer*/) override { return {drive_}; }

private:
    std::shared_ptr<Drive> drive_;
};

class FakeFeeder final : public AudioFeeder {
public:
    explicit FakeFeeder(const std::vector<AudioTrackRequest> &tracks)
        : content_(TrackKind::audio, sectorsOf(tracks)) {}

    std::unique_ptr<SectorSource> openTrack(std::size_t index) override {
        return std::move(*content_.openTrack(index, {}));
    }

private:
    static std::vector<std::int64_t> sectorsOf(const std::vector<AudioTrackRequest> &tracks) {
        std::vector<std::int64_t> sectors;
        sectors.reserve(tracks.size());
        for (const AudioTrackRequest &track : tracks) {
            sectors.push_back(sectorsForSamples(track.samples));
        }
        return sectors;
    }

    FakeContent content_;
};

std::uint64_t imageBytes(const std::vector<ItemRef> &items) {
    std::uint64_t bytes = 183 * dataSectorBytes;
    for (const ItemRef &item : items) {
        bytes += static_cast<const DataItem &>(*item).fileBytes + dataSectorBytes;
    }
    return (bytes + dataSectorBytes - 1) / dataSectorBytes * dataSectorBytes;
}

Outcome<IsoScan> scanOf(const std::filesystem::path &path) {
    IsoScan scan;
    auto node = std::make_shared<IsoNode>();
    node->name = path.filename().string();
    node->path = path;
    node->isFolder = std::filesystem::is_directory(path);
    node->size = node->isFolder ? 0 : std::filesystem::file_size(path);
    scan.files = node->isFolder ? 0 : 1;
    scan.upperBoundBytes = node->size + 4 * dataSectorBytes;
    scan.node = std::move(node);
    return scan;
}

} // namespace

void Gate::pass(const std::stop_token &stop) {
    std::unique_lock lock(mutex_);
    ++visitors_;
    changed_.notify_all();
    changed_.wait(lock, stop, [this] { return open_; });
}

void Gate::open() {
    const std::lock_guard lock(mutex_);
    open_ = true;
    changed_.notify_all();
}

bool Gate::waitForVisitor() {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::seconds(20), [this] { return visitors_ > 0; });
}

BurnerHarness::BurnerHarness()
    : clock_([this] { return Moment(std::chrono::milliseconds(milliseconds_.load())); }) {
    std::vector<std::unique_ptr<DriveSource>> sources;
    sources.push_back(std::make_unique<OneDriveSource>(drive_));
    drives_ = DriveRegistry::create(std::move(sources), queue_.poster());
    device_ = drives_->makeHandle("Drive");
}

BurnerHarness::~BurnerHarness() = default;

std::shared_ptr<Burner> BurnerHarness::makeAudioBurner() {
    const auto probe = [this](const std::filesystem::path &path,
                              const std::stop_token &stop) -> AudioProbe {
        const std::string name = path.filename().string();
        if (onProbe_) {
            AudioProbe answer = onProbe_(name, stop);
            if (!std::holds_alternative<AudioInfo>(answer)) {
                return answer;
            }
        }
        const auto known = songSectors_.find(name);
        const std::int64_t sectors = known != songSectors_.end() ? known->second : 300;
        return AudioInfo{static_cast<std::uint64_t>(sectors) * 588, {}, name, {}};
    };
    const auto expand = [](const std::vector<BurnFile> &files, const std::stop_token &) {
        return AudioFileList{files, {}};
    };
    const auto makeFeeder =
        [](const std::vector<AudioTrackRequest> &tracks) -> Result<std::unique_ptr<AudioFeeder>> {
        return std::unique_ptr<AudioFeeder>(std::make_unique<FakeFeeder>(tracks));
    };
    return Burner::create(
        std::make_unique<AudioKind>(AudioCheckServices{expand, probe, 2, clock_}, makeFeeder),
        {queue_.poster(), clock_, drives_, [this] {
             return verify_;
         }});
}

std::shared_ptr<Burner> BurnerHarness::makeDataBurner() {
    DataKindServices services;
    services.check.count = [](const std::filesystem::path &, const std::stop_token &) {
        return std::uint64_t{1};
    };
    services.check.scan = [this](const std::filesystem::path &path, const ScanProgress &progress,
                                 const std::stop_token &stop) -> Outcome<IsoScan> {
        progress(path);
        if (onScan_) {
            onScan_(path.filename().string(), stop);
        }
        return stop.stop_requested() ? Outcome<IsoScan>(Interruption(Cancelled{})) : scanOf(path);
    };
    services.check.clock = clock_;
    services.imageSize = [this](const std::vector<ItemRef> &items,
                                const std::stop_token &stop) -> Outcome<std::uint64_t> {
        ++sizesAsked_;
        if (onSize_) {
            onSize_(stop);
        }
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        return imageBytes(items);
    };
    services.makeContent = [](const std::vector<ItemRef> &items, const std::string &name,
                              const std::stop_token &) {
        const auto sectors = static_cast<std::int64_t>(imageBytes(items) / dataSectorBytes);
        return Outcome<std::unique_ptr<DiscContent>>(std::make_unique<FakeContent>(
            TrackKind::data, std::vector<std::int64_t>{sectors}, name));
    };
    services.post = queue_.poster();
    return Burner::create(std::make_unique<DataKind>(std::move(services)),
                          {queue_.poster(), clock_, drives_, [this] {
                               return verify_;
                           }});
}

std::vector<BurnFile> BurnerHarness::files(const std::vector<std::string> &names) {
    std::vector<BurnFile> files;
    files.reserve(names.size());
    for (const std::string &name : names) {
        files.push_back({folder_.write(name, name), {}, {}});
    }
    return files;
}

void BurnerHarness::add(Burner &burner, const std::vector<std::string> &names) {
    ScorchLog log;
    burner.setDelegate(&log);
    ASSERT_TRUE(burner.addFiles(files(names)));
    ASSERT_TRUE(runUntil([&log] { return log.checkOver(); }));
}

std::vector<std::string> BurnerHarness::namesIn(const Burner &burner) const {
    std::vector<std::string> names;
    for (std::int64_t index = 0; index < burner.numberOfChildrenOfBurnItem(nullptr); ++index) {
        const ItemProperties properties =
            burner.propertyOfBurnItem(burner.childOfBurnItem(index, nullptr));
        names.push_back(std::get<std::string>(properties.at(kScorchItemDisplayNameKey)));
    }
    return names;
}

bool BurnerHarness::runUntilWord(const ScorchLog &log, const std::string &word) {
    return runUntil([&log, &word] { return log.has(word); });
}
