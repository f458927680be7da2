// SPDX-License-Identifier: GPL-2.0-or-later
// Recordings that succeed, and what libburn would call a success that is none.
#include "scorch/libburn/CdTextPacks.h"
#include "scorch/libburn/LibburnRun.h"
#include "tests/scorch/libburn/RecordingTest.h"

#include <gmock/gmock.h>

#include <thread>

using namespace recorder;
using namespace scorch;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class RecordingDiscs : public RecordingTest {};

} // namespace

TEST_F(RecordingDiscs, SoundStandsGaplessOnAClosedDisc) {
    FakeContent content(TrackKind::audio, {300, 777, 301});
    ASSERT_TRUE(record(content));
    EXPECT_TRUE(recording_->isComplete());
    EXPECT_EQ(soundOnDisc(1378), content.bytes());
    const Disc disc = scene_.disc();
    EXPECT_TRUE(disc.isFinal);
    ASSERT_EQ(disc.sessions.size(), 1U);
    EXPECT_EQ(disc.sessions[0].leadOut, 1378);
    ASSERT_EQ(disc.sessions[0].tracks.size(), 3U);
    EXPECT_EQ(disc.sessions[0].tracks[0].pregap, 150);
    EXPECT_EQ(disc.sessions[0].tracks[1].start, 300);
    EXPECT_EQ(disc.sessions[0].tracks[1].pregap, 0);
    EXPECT_EQ(disc.sessions[0].tracks[2].start, 1077);
    EXPECT_THAT(stages_, ElementsAre("open 1", "write 1", "close 1", "open 2", "write 2", "close 2",
                                     "open 3", "write 3", "close 3", "session", "finishing"));
}

TEST_F(RecordingDiscs, ImageStandsAsItIsOnAClosedDisc) {
    FakeContent content(TrackKind::data, {1000});
    ASSERT_TRUE(record(content));
    EXPECT_EQ(dataOnDisc(1000), content.bytes());
    const Disc disc = scene_.disc();
    EXPECT_EQ(disc.sessions[0].leadOut, 1000);
    EXPECT_EQ(disc.sessions[0].tracks[0].form, SectorForm::Mode1);
    EXPECT_TRUE(disc.isFinal);
}

TEST_F(RecordingDiscs, ShortImageIsFilledUpToFourSeconds) {
    FakeContent content(TrackKind::data, {200});
    ASSERT_TRUE(record(content));
    EXPECT_EQ(scene_.disc().sessions[0].leadOut, 300);
    EXPECT_EQ(dataOnDisc(300), content.bytes() + std::string(100 * dataSectorBytes, '\0'));
}

TEST_F(RecordingDiscs, LongestTextsAreAccepted) {
    FakeContent content(TrackKind::audio, std::vector<std::int64_t>(99, 300), std::string(50, 'A'));
    for (std::size_t index = 0; index < 99; ++index) {
        content.layout(index).title = std::to_string(index) + std::string(100, 't');
        content.layout(index).performer = std::to_string(index) + std::string(100, 'p');
    }
    ASSERT_TRUE(record(content));
    EXPECT_LE(scene_.disc().textPacks.size(), mostPacks);
    EXPECT_GE(scene_.disc().textPacks.size(), mostPacks - 2);
}

TEST_F(RecordingDiscs, PacksStandInTheLeadInAsTheyWereMade) {
    FakeContent content(TrackKind::audio, {300, 400}, "黄金集");
    content.layout(0).performer = "安"; // The disc as a whole has none.
    ASSERT_TRUE(record(content));
    const std::vector<CdTextPack> sent = cdTextPacks(*planCdText(content).text);
    const std::vector<TextPack> recorded = scene_.disc().textPacks;
    EXPECT_EQ(recorded, std::vector<TextPack>(sent.begin(), sent.end()));
}

TEST_F(RecordingDiscs, DriveThatRefusesTextsGetsTheDiscWithoutThem) {
    scene_.control("refuse-cd-text\n");
    FakeContent content(TrackKind::audio, {300, 400}, "Album");
    ASSERT_TRUE(record(content));
    EXPECT_EQ(soundOnDisc(700), content.bytes());
    EXPECT_THAT(scene_.disc().textPacks, IsEmpty());
    EXPECT_THAT(log(), Contains(HasSubstr("CD-TEXT: the drive does not write it")));
}

TEST_F(RecordingDiscs, SourceThatEndsEarlyIsNoSuccess) {
    FakeContent content(TrackKind::audio, {300, 400});
    content.missingSectors = 10;
    EXPECT_THAT(failureOf(content).localizedDescription(), HasSubstr("song 2 at 390"));
    EXPECT_FALSE(recording_->isComplete());
}

TEST_F(RecordingDiscs, SourceThatFailsInTheMiddleIsNoSuccess) {
    scene_.control("slow 20000\n");
    FakeContent content(TrackKind::audio, {300, 30'000}, ""); // More than the ring holds.
    content.beforeRead = [](std::int64_t sector) -> Outcome<> {
        return sector < 25'000
                   ? Outcome<>()
                   : Interruption(ScorchError(ScorchErrorCode::sourceChanged, "it shrank"));
    };
    EXPECT_EQ(failureOf(content).category(), ScorchErrorCode::sourceChanged);
    EXPECT_TRUE(scene_.disc().hasOpenSession());
}

TEST_F(RecordingDiscs, JobThatLibburnRefusesWhileItIsBusyIsNoSuccess) {
    patience_.worker = std::chrono::milliseconds(150);
    FakeContent content(TrackKind::audio, {300});
    const SessionPlan plan = planSession(content);
    const auto ring = std::make_shared<SectorRing>(300 * audioSectorBytes);
    const auto inbox = thread_->subscribe();
    std::unique_ptr<LibburnSession> session;
    thread_->run([&] {
        session = LibburnSession::grab("/dev/" + name_);
        session->write(plan, std::nullopt, 0, ring); // Waits for its first sector.
    });
    OffsetReference reference(true);
    ContentPump pump(content, plan, *ring, reference);
    SilentObserver nobody;
    StageReporter stages(plan, nobody);
    LibburnRun run({*thread_, *session, *inbox, ring, pump, stages, plan, {}, patience_});
    EXPECT_FALSE(run.write(std::nullopt, 0, {}));
    thread_->run([&] { session->cancel(); });
    ring->abort();
    for (bool isIdle = false; !isIdle;) {
        thread_->run([&] { isIdle = session->isIdle(); });
        std::this_thread::yield();
    }
    thread_->run([&] { session.reset(); });
}

TEST_F(RecordingDiscs, DiscThatIsNotAsItWasMeantIsNoSuccess) {
    scene_.makeDisc(blankDisc(DiscKind::CdR), "other");
    atStage_ = [this](const std::string &stage) {
        if (stage == "finishing") {
            scene_.control("disc other\n");
        }
    };
    FakeContent content(TrackKind::audio, {300});
    EXPECT_EQ(record(content).ok(), false);
    EXPECT_FALSE(recording_->isComplete());
}

TEST_F(RecordingDiscs, EndsThatADriveCannotReachAreLeftOut) {
    scene_.control("read-offset 600\n");
    FakeContent content(TrackKind::audio, {300, 400});
    ASSERT_TRUE(record(content));
    EXPECT_EQ(*recording_->readableSectors(0, 300, {}), (SectorRange{0, 300}));
    EXPECT_EQ(*recording_->readableSectors(1, 400, {}), (SectorRange{0, 398}));
    std::string sound(398 * audioSectorBytes, '?');
    ASSERT_TRUE(recording_->readBack(1, 0, std::as_writable_bytes(std::span(sound)), {}));
    EXPECT_EQ(sound, content.bytes().substr(300 * audioSectorBytes, sound.size()));
}

TEST_F(RecordingDiscs, SectorThatCannotBeReadBackNamesTheSong) {
    scene_.control("read-error 450\n");
    FakeContent content(TrackKind::audio, {300, 400});
    ASSERT_TRUE(record(content));
    std::vector<std::byte> sound(400 * audioSectorBytes);
    const auto read = recording_->readBack(1, 0, sound, {});
    ASSERT_FALSE(read);
    EXPECT_THAT(errorOf(read.error()).localizedDescription(), HasSubstr("“song 2 at 150”"));
    EXPECT_THAT(errorOf(read.error()).detail(), HasSubstr("3/11/00"));
}

TEST_F(RecordingDiscs, DriveThatIsAwayWhenItIsReadBackIsNotTheDiscsFault) {
    FakeContent content(TrackKind::data, {400});
    ASSERT_TRUE(record(content));
    std::vector<std::byte> data(16 * dataSectorBytes);
    for (const char *fault : {"silent 20\n", "tray open #1\n", "vanished\n"}) {
        scene_.control(fault);
        const auto read = recording_->readBack(0, 0, data, {});
        ASSERT_FALSE(read);
        const ScorchError error = errorOf(read.error());
        EXPECT_EQ(error.category(), ScorchErrorCode::verifyFailed);
        EXPECT_THAT(error.localizedDescription(), HasSubstr("could not be verified")) << fault;
    }
}

TEST_F(RecordingDiscs, TwoDrivesRecordAtOnce) {
    const DriveScene second(std::getenv("CD_RECORDER"), "sr31");
    second.makeDisc(blankDisc(DiscKind::CdRw));
    second.control("slow 3000\nwrite-error 350\n");
    scene_.control("slow 3000\n");
    FakeContent content(TrackKind::audio, {600}, "");
    FakeContent failing(TrackKind::audio, {600}, "");
    std::optional<ScorchErrorCode> failure;
    std::thread other([&] {
        const RecordingTarget target{.driveName = "Other", .node = "/dev/sr31"};
        auto begun = OpticalDiscRecording::create(thread_, target, failing, {}, {});
        SilentObserver nobody;
        const auto recorded = (*begun)->record(failing, nobody, {});
        failure = recorded ? std::nullopt : std::optional(errorOf(recorded.error()).category());
    });
    EXPECT_TRUE(record(content)) << "the other drive's error is not ours";
    other.join();
    EXPECT_EQ(failure, ScorchErrorCode::writeFailed);
    EXPECT_EQ(soundOnDisc(600), content.bytes());
}
