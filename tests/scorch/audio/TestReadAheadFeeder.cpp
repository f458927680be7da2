// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/audio/ReadAheadFeeder.h"
#include "scorch/support/DiscContent.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <stdexcept>

namespace {

using scorch::AudioTrackRequest;
using scorch::ReadAheadFeeder;
using testing::HasSubstr;

/// A song of so many samples, each with a value of its own, which may end in an error.
struct FakeSong {
    std::uint64_t samples = 0;
    std::optional<ScorchError> failure;
    bool hangs = false; ///< Delivers nothing until it is stopped.
    bool throws = false;
};

std::int16_t valueAt(std::uint64_t index) {
    return static_cast<std::int16_t>(index * 7919 % 65521);
}

/// Songs by path, and what was asked of them.
struct FakeSongs {
    std::map<std::string, FakeSong> songs;
    std::atomic<std::uint64_t> deliveredBytes = 0;
    std::atomic<int> opened = 0;

    scorch::OpenSong opener();
};

class FakeStream final : public scorch::SongStream {
public:
    FakeStream(FakeSongs &songs, const FakeSong &song) : songs_(songs), song_(song) {}

    scorch::Outcome<std::size_t> read(std::span<std::int16_t> values,
                                      const std::stop_token &stop) override {
        if (song_.throws) {
            throw std::runtime_error("out of luck");
        }
        while (song_.hangs && !stop.stop_requested()) {
            std::this_thread::yield();
        }
        if (stop.stop_requested()) {
            return scorch::Interruption(scorch::Cancelled{});
        }
        std::size_t filled = 0;
        for (; filled < values.size() && at_ < song_.samples * 2; ++filled) {
            values[filled] = valueAt(at_++);
        }
        if (filled == 0 && song_.failure) {
            return scorch::Interruption(*song_.failure);
        }
        songs_.deliveredBytes += filled * 2;
        return filled;
    }

private:
    FakeSongs &songs_;
    const FakeSong song_;
    std::uint64_t at_ = 0;
};

scorch::OpenSong FakeSongs::opener() {
    return [this](const std::filesystem::path &path,
                  const std::stop_token &) -> scorch::Outcome<std::unique_ptr<scorch::SongStream>> {
        ++opened;
        return std::unique_ptr<scorch::SongStream>(
            std::make_unique<FakeStream>(*this, songs.at(path.string())));
    };
}

constexpr std::size_t megabyte = std::size_t{1} << 20;

/// Reads a track to its end in pieces of `sectors`.
scorch::Outcome<std::string> readTrack(ReadAheadFeeder &feeder, std::size_t index,
                                       std::size_t sectors = 27) {
    const std::unique_ptr<scorch::SectorSource> source = feeder.openTrack(index);
    std::vector<std::byte> buffer(sectors * scorch::audioSectorBytes);
    std::string all;
    while (true) {
        const scorch::Outcome<std::size_t> got = source->read(buffer, {});
        if (!got) {
            return got.error();
        }
        all.append(reinterpret_cast<const char *>(buffer.data()), *got);
        if (*got < buffer.size()) {
            return all;
        }
    }
}

/// What a track of `samples` samples must hold.
std::string expectedTrack(std::uint64_t samples) {
    std::string bytes(static_cast<std::size_t>(scorch::sectorsForSamples(samples)) *
                          scorch::audioSectorBytes,
                      '\0');
    for (std::uint64_t i = 0; i < samples * 2; ++i) {
        const std::int16_t value = valueAt(i);
        std::memcpy(bytes.data() + i * 2, &value, 2);
    }
    return bytes;
}

ScorchError errorOf(const scorch::Outcome<std::string> &outcome) {
    if (outcome.ok() || scorch::isCancelled(outcome.error())) {
        ADD_FAILURE() << "no error";
        return {ScorchErrorCode::internal, {}};
    }
    return std::get<ScorchError>(outcome.error());
}

TEST(ReadAheadFeeder, SongsArriveWholeAndInOrder) {
    FakeSongs songs;
    std::vector<AudioTrackRequest> requests;
    const std::vector<std::uint64_t> lengths = {200000, 176400, 176401, 400123, 199999};
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        songs.songs["s" + std::to_string(i)] = {.samples = lengths[i], .failure = {}};
        requests.push_back({"s" + std::to_string(i), lengths[i]});
    }
    ReadAheadFeeder feeder(requests, 3, songs.opener());
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const scorch::Outcome<std::string> track = readTrack(feeder, i, 10 * i + 1);
        ASSERT_TRUE(track.ok());
        EXPECT_TRUE(*track == expectedTrack(lengths[i])) << i;
    }
}

TEST(ReadAheadFeeder, LastSectorIsFilledWithZeros) {
    FakeSongs songs{.songs = {{"a", {.samples = 588 * 400 + 5, .failure = {}}}}};
    ReadAheadFeeder feeder({{"a", 588 * 400 + 5}}, 1, songs.opener());
    const scorch::Outcome<std::string> track = readTrack(feeder, 0);
    ASSERT_TRUE(track.ok());
    EXPECT_EQ(track->size(), 401U * 2352);
    EXPECT_EQ(track->substr(400 * 2352 + 20), std::string(2352 - 20, '\0'));
}

TEST(ReadAheadFeeder, ShortSongIsPaddedToFourSeconds) {
    FakeSongs songs{.songs = {{"a", {.samples = 1, .failure = {}}}}};
    ReadAheadFeeder feeder({{"a", 1}}, 1, songs.opener());
    const scorch::Outcome<std::string> track = readTrack(feeder, 0);
    ASSERT_TRUE(track.ok());
    EXPECT_EQ(*track, expectedTrack(1));
    EXPECT_EQ(track->size(), 300U * 2352);
}

TEST(ReadAheadFeeder, SongThatEndsEarlyIsAnErrorThatNamesTheFile) {
    FakeSongs songs{.songs = {{"dir/Early.flac", {.samples = 99999, .failure = {}}}}};
    ReadAheadFeeder feeder({{"dir/Early.flac", 100000}}, 1, songs.opener());
    const ScorchError error = errorOf(readTrack(feeder, 0));
    EXPECT_EQ(error.category(), ScorchErrorCode::sourceTooShort);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("Early.flac"));
    EXPECT_THAT(error.detail(), HasSubstr("99999 of 100000"));
}

TEST(ReadAheadFeeder, SongThatGrewIsAnErrorThatNamesTheFile) {
    FakeSongs songs{.songs = {{"dir/Longer.flac", {.samples = 100001, .failure = {}}}}};
    ReadAheadFeeder feeder({{"dir/Longer.flac", 100000}}, 1, songs.opener());
    const ScorchError error = errorOf(readTrack(feeder, 0));
    EXPECT_EQ(error.category(), ScorchErrorCode::sourceChanged);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("Longer.flac"));
}

TEST(ReadAheadFeeder, ErrorOfTheDecoderReachesTheReader) {
    const ScorchError failure(ScorchErrorCode::sourceUnreadable, "broken", "sector 7");
    FakeSongs songs{.songs = {{"a", {.samples = 100, .failure = failure}}}};
    ReadAheadFeeder feeder({{"a", 200000}}, 1, songs.opener());
    EXPECT_EQ(errorOf(readTrack(feeder, 0)).detail(), "sector 7");
}

TEST(ReadAheadFeeder, ErrorOfALaterSongWaitsForItsTurn) {
    const ScorchError failure(ScorchErrorCode::sourceUnreadable, "broken");
    FakeSongs songs{.songs = {{"a", {.samples = 300000, .failure = {}}},
                              {"b", {.samples = 0, .failure = failure}}}};
    ReadAheadFeeder feeder({{"a", 300000}, {"b", 5}}, 2, songs.opener());
    EXPECT_TRUE(readTrack(feeder, 0).ok());
    EXPECT_EQ(errorOf(readTrack(feeder, 1)).category(), ScorchErrorCode::sourceUnreadable);
}

TEST(ReadAheadFeeder, ExceptionBecomesAnError) {
    FakeSongs songs{.songs = {{"a", {.samples = 9, .failure = {}, .throws = true}}}};
    ReadAheadFeeder feeder({{"a", 9}}, 1, songs.opener());
    EXPECT_THAT(errorOf(readTrack(feeder, 0)).detail(), HasSubstr("out of luck"));
}

// Three songs, each larger than all the memory: the one that is read must move on.
TEST(ReadAheadFeeder, LongSongsDoNotBlockTheOrder) {
    constexpr std::uint64_t samples = 2'000'000;
    FakeSongs songs{.songs = {{"a", {.samples = samples, .failure = {}}}}};
    const AudioTrackRequest request{"a", samples};
    ReadAheadFeeder feeder({request, request, request}, 3, songs.opener(), 2 * megabyte);
    for (std::size_t i = 0; i < 3; ++i) {
        const scorch::Outcome<std::string> track = readTrack(feeder, i);
        ASSERT_TRUE(track.ok());
        EXPECT_TRUE(*track == expectedTrack(samples));
    }
}

TEST(ReadAheadFeeder, DecodesAheadWithinItsMemory) {
    constexpr std::uint64_t samples = 4'000'000; // 16 MB
    FakeSongs songs{.songs = {{"a", {.samples = samples, .failure = {}}}}};
    const AudioTrackRequest request{"a", samples};
    ReadAheadFeeder feeder({request, request, request}, 2, songs.opener(), 8 * megabyte);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (songs.deliveredBytes < 6 * megabyte && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::yield();
    }
    EXPECT_GE(songs.deliveredBytes, 6 * megabyte) << "nothing was decoded ahead";
    const std::unique_ptr<scorch::SectorSource> first = feeder.openTrack(0);
    std::vector<std::byte> sector(scorch::audioSectorBytes);
    ASSERT_TRUE(first->read(sector, {}).ok());
    // One block that the reader holds, one in each worker's hand.
    EXPECT_LE(songs.deliveredBytes, 9.5 * megabyte);
}

TEST(ReadAheadFeeder, ReaderMayLeaveASongAndTakeTheNext) {
    constexpr std::uint64_t samples = 2'000'000;
    FakeSongs songs{.songs = {{"a", {.samples = samples, .failure = {}}},
                              {"b", {.samples = 200000, .failure = {}}}}};
    ReadAheadFeeder feeder({{"a", samples}, {"b", 200000}}, 1, songs.opener(), megabyte);
    std::vector<std::byte> sector(scorch::audioSectorBytes);
    ASSERT_TRUE(feeder.openTrack(0)->read(sector, {}).ok());
    const scorch::Outcome<std::string> second = readTrack(feeder, 1);
    ASSERT_TRUE(second.ok());
    EXPECT_TRUE(*second == expectedTrack(200000));
}

TEST(ReadAheadFeeder, StopRequestEndsAReadThatWaits) {
    FakeSongs songs{.songs = {{"a", {.samples = 9, .failure = {}, .hangs = true}}}};
    ReadAheadFeeder feeder({{"a", 9}}, 1, songs.opener());
    const std::unique_ptr<scorch::SectorSource> source = feeder.openTrack(0);
    std::stop_source stop;
    std::vector<std::byte> sector(scorch::audioSectorBytes);
    std::future<bool> cancelled = std::async(std::launch::async, [&] {
        const scorch::Outcome<std::size_t> got = source->read(sector, stop.get_token());
        return !got.ok() && scorch::isCancelled(got.error());
    });
    stop.request_stop();
    // The decoder goes on hanging: nobody has asked it to stop.
    ASSERT_EQ(cancelled.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    EXPECT_TRUE(cancelled.get());
}

TEST(ReadAheadFeeder, EndsWhileItsWorkersWaitOrDecode) {
    FakeSongs songs{.songs = {{"a", {.samples = 9'000'000, .failure = {}}},
                              {"b", {.samples = 9, .failure = {}, .hangs = true}}}};
    const auto start = std::chrono::steady_clock::now();
    {
        const ReadAheadFeeder feeder({{"a", 9'000'000}, {"b", 9}}, 2, songs.opener(), megabyte);
        while (songs.opened < 2) {
            std::this_thread::yield();
        }
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(ReadAheadFeeder, NoSongsAreNoProblem) {
    FakeSongs songs;
    const ReadAheadFeeder feeder({}, 2, songs.opener());
    EXPECT_EQ(songs.opened, 0);
}

} // namespace
