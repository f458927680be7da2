// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/ContentPump.h"
#include "tests/scorch/drive/FakeContent.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::HasSubstr;

namespace {

class ContentPumpTest : public testing::Test {
protected:
    /// Pumps all into a ring that takes it; what came out, or the error.
    Outcome<> pumpAll() {
        plan_ = planSession(content_);
        ring_ = std::make_unique<SectorRing>(static_cast<std::size_t>(plan_.total()) *
                                             plan_.bytesPerSector());
        ContentPump pump(content_, plan_, *ring_, reference_);
        while (!pump.isFinished()) {
            if (auto stepped = pump.step(stop_.get_token()); !stepped) {
                return stepped;
            }
        }
        return {};
    }

    std::string pumped() {
        std::string bytes(ring_->capacity() + 1, '?');
        bytes.resize(ring_->take(std::as_writable_bytes(std::span(bytes))));
        return bytes;
    }

    static ScorchError errorOf(const Outcome<> &outcome) {
        return std::get<ScorchError>(outcome.error());
    }

    FakeContent content_{TrackKind::audio, {300, 1100}};
    SessionPlan plan_;
    std::unique_ptr<SectorRing> ring_;
    OffsetReference reference_{true};
    std::stop_source stop_;
};

} // namespace

TEST_F(ContentPumpTest, AllTracksComeOutBehindEachOther) {
    ASSERT_TRUE(pumpAll());
    EXPECT_EQ(pumped(), content_.bytes());
    EXPECT_TRUE(ring_->isFinished());
}

TEST_F(ContentPumpTest, SourceThatEndsEarlyIsAnErrorThatNamesIt) {
    content_.missingSectors = 10;
    const auto outcome = pumpAll();
    ASSERT_FALSE(outcome);
    EXPECT_THAT(errorOf(outcome).localizedDescription(), HasSubstr("song 2 at 1090"));
    EXPECT_FALSE(ring_->isFinished());
}

TEST_F(ContentPumpTest, SourceThatGoesOnIsAnErrorThatNamesIt) {
    content_.missingSectors = -1;
    const auto outcome = pumpAll();
    ASSERT_FALSE(outcome);
    EXPECT_THAT(errorOf(outcome).localizedDescription(), HasSubstr("song 2"));
    EXPECT_FALSE(ring_->isFinished());
}

TEST_F(ContentPumpTest, SourceThatFailsEndsIt) {
    content_.beforeRead = [](std::int64_t sector) -> Outcome<> {
        return sector < 600 ? Outcome<>()
                            : Interruption(ScorchError(ScorchErrorCode::sourceMissing, "gone"));
    };
    EXPECT_EQ(errorOf(pumpAll()).localizedDescription(), "gone");
}

TEST_F(ContentPumpTest, StopRequestEndsIt) {
    stop_.request_stop();
    const auto outcome = pumpAll();
    ASSERT_FALSE(outcome);
    EXPECT_TRUE(isCancelled(outcome.error()));
}

TEST(ContentPumpFilling, ShortImageIsFilledUpWithZeros) {
    FakeContent content(TrackKind::data, {200});
    const SessionPlan plan = planSession(content);
    SectorRing ring(300 * dataSectorBytes);
    OffsetReference reference(false);
    ContentPump pump(content, plan, ring, reference);
    while (!pump.isFinished()) {
        ASSERT_TRUE(pump.step({}));
    }
    std::string bytes(300 * dataSectorBytes, '?');
    ASSERT_EQ(ring.take(std::as_writable_bytes(std::span(bytes))), bytes.size());
    EXPECT_EQ(bytes, content.bytes() + std::string(100 * dataSectorBytes, '\0'));
}

TEST(ContentPumpFilling, NoMoreIsPutThanThereIsRoomFor) {
    FakeContent content(TrackKind::audio, {300});
    const SessionPlan plan = planSession(content);
    SectorRing ring(10 * audioSectorBytes);
    OffsetReference reference(true);
    ContentPump pump(content, plan, ring, reference);
    ASSERT_TRUE(pump.step({}));
    ASSERT_TRUE(pump.step({}));
    EXPECT_EQ(pump.sectorsPut(), 10);
    EXPECT_TRUE(ring.isFull());
}
