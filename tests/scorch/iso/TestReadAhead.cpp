// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/ReadAhead.h"
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>

using namespace isotest;
using namespace std::chrono_literals;
using scorch::Cancelled;
using scorch::Interruption;
using scorch::Outcome;
using scorch::ReadAhead;

namespace {

/// Delivers `sectors` sectors, each filled with its number, then fails or ends.
class CountingSource final : public scorch::SectorSource {
public:
    CountingSource(std::size_t sectors, bool fails) : sectors_(sectors), fails_(fails) {}

    Outcome<std::size_t> read(std::span<std::byte> buffer, const std::stop_token &) override {
        std::size_t filled = 0;
        while (filled < buffer.size() && done_ < sectors_) {
            const auto sector = buffer.subspan(filled, 2048);
            std::fill(sector.begin(), sector.end(), static_cast<std::byte>(done_++ % 251));
            filled += 2048;
        }
        if (fails_ && done_ == sectors_ && filled == 0) {
            return Interruption(ScorchError(ScorchErrorCode::sourceChanged, "as asked"));
        }
        return filled;
    }

private:
    std::size_t sectors_;
    std::size_t done_ = 0;
    bool fails_;
};

/// Waits in read() until it is asked to stop, like a disk that does not answer.
class SilentSource final : public scorch::SectorSource {
public:
    explicit SilentSource(std::promise<void> &entered) : entered_(entered) {}

    Outcome<std::size_t> read(std::span<std::byte>, const std::stop_token &stop) override {
        std::mutex mutex;
        std::unique_lock lock(mutex);
        std::condition_variable_any never;
        entered_.set_value();
        never.wait(lock, stop, [] { return false; });
        return Interruption(Cancelled{});
    }

private:
    std::promise<void> &entered_;
};

TEST(ReadAhead, DeliversWhatIsThereInAnyPieces) {
    for (const std::size_t sectors : {0, 1, 127, 128, 129, 5000}) {
        CountingSource plain(sectors, false);
        const std::string expected = streamed(plain, std::size_t{2048} * 6000).bytes;
        for (const std::size_t piece : {1, 100, 128, 129, 6000}) {
            ReadAhead ahead(std::make_unique<CountingSource>(sectors, false));
            EXPECT_TRUE(streamed(ahead, piece * 2048).bytes == expected) << sectors << " " << piece;
        }
    }
}

TEST(ReadAhead, BehindTheEndThereIsNothing) {
    ReadAhead ahead(std::make_unique<CountingSource>(3, false));
    EXPECT_EQ(streamed(ahead).bytes.size(), 3U * 2048);
    EXPECT_EQ(streamed(ahead).bytes.size(), 0U);
}

TEST(ReadAhead, AFailureComesBehindWhatWasReadBeforeIt) {
    ReadAhead ahead(std::make_unique<CountingSource>(1280, true));
    const Streamed stream = streamed(ahead, std::size_t{2048} * 128);
    EXPECT_EQ(stream.bytes.size(), 1280U * 2048);
    ASSERT_TRUE(stream.failure);
    EXPECT_FALSE(scorch::isCancelled(*stream.failure));
}

TEST(ReadAhead, AStopIsAnsweredWhileTheDiskIsSilent) {
    std::promise<void> entered;
    ReadAhead ahead(std::make_unique<SilentSource>(entered));
    ASSERT_EQ(entered.get_future().wait_for(10s), std::future_status::ready);
    std::stop_source stop;
    auto reading = std::async(std::launch::async, [&] {
        std::vector<std::byte> buffer(2048);
        return ahead.read(buffer, stop.get_token());
    });
    EXPECT_EQ(reading.wait_for(0s), std::future_status::timeout);
    stop.request_stop(); // The source goes on waiting: nobody has asked it to stop.
    ASSERT_EQ(reading.wait_for(10s), std::future_status::ready);
    const auto outcome = reading.get();
    ASSERT_FALSE(outcome.ok());
    EXPECT_TRUE(scorch::isCancelled(outcome.error()));
}

TEST(ReadAhead, CanGoAwayInTheMiddle) {
    ReadAhead ahead(std::make_unique<CountingSource>(100000, false));
    std::vector<std::byte> buffer(2048);
    EXPECT_TRUE(ahead.read(buffer, {}).ok());
}

TEST(IsoStream, AStopInTheMiddleIsNoFailure) {
    const TemporaryFolder folder;
    const auto image = laidOut(entriesOf({folder.write("big", std::string(8 << 20, 'b'))}));
    const auto source = image->openSource();
    std::vector<std::byte> buffer(1 << 20);
    std::stop_source stop;
    ASSERT_TRUE(source->read(buffer, stop.get_token()).ok());
    stop.request_stop();
    const auto outcome = source->read(buffer, stop.get_token());
    ASSERT_FALSE(outcome.ok());
    EXPECT_TRUE(scorch::isCancelled(outcome.error()));
}

TEST(IsoStream, AStopBeforeTheLayoutIsNoFailure) {
    std::stop_source stop;
    stop.request_stop();
    const auto image = scorch::IsoImage::create({}, "Test", stop.get_token());
    ASSERT_FALSE(image.ok());
    EXPECT_TRUE(scorch::isCancelled(image.error()));
}

} // namespace
