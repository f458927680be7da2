// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageDrive.h"
#include "tests/scorch/drive/FakeContent.h"
#include "tests/scorch/drive/RecordLog.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <set>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::set<std::string> filesIn(const std::filesystem::path &folder) {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

class ImageDriveTest : public testing::Test {
protected:
    TemporaryFolder folder_;
    std::shared_ptr<ImageDrive> drive_ = ImageDrive::create({folder_.path(), 80, false}, "Drive");
    RecordLog log_;
    std::stop_source stop_;

    /// Records and commits; the error's text if that fails.
    std::string burn(FakeContent &content) {
        auto recording = drive_->beginRecording(content, stop_.get_token());
        if (!recording) {
            return std::get<ScorchError>(recording.error()).localizedDescription();
        }
        if (auto recorded = (*recording)->record(content, log_, stop_.get_token()); !recorded) {
            return std::get<ScorchError>(recorded.error()).localizedDescription();
        }
        auto committed = (*recording)->commit();
        return committed ? "" : committed.error().localizedDescription();
    }
};

} // namespace

TEST_F(ImageDriveTest, HoldsABlankDiscAtFirst) {
    const DriveState state = drive_->state();
    EXPECT_TRUE(state.canWriteCd);
    EXPECT_FALSE(state.checking);
    EXPECT_EQ(state.disc, (DiscState{true, true, true, 359'849}));
}

TEST_F(ImageDriveTest, WritesADataDiscAsAnIso) {
    FakeContent content(TrackKind::data, {1500}, "Photos");
    EXPECT_EQ(burn(content), "");
    EXPECT_THAT(filesIn(folder_.path()), ElementsAre("Photos.iso"));
    EXPECT_EQ(readFile(folder_ / "Photos.iso"), content.bytes());
}

TEST_F(ImageDriveTest, WritesASoundDiscAsAPair) {
    FakeContent content(TrackKind::audio, {300, 701}, "Road trip");
    EXPECT_EQ(burn(content), "");
    EXPECT_THAT(filesIn(folder_.path()), ElementsAre("Road trip.bin", "Road trip.cue"));
    EXPECT_EQ(readFile(folder_ / "Road trip.bin"), content.bytes());
    EXPECT_THAT(readFile(folder_ / "Road trip.cue"), HasSubstr("FILE \"Road trip.bin\" BINARY"));
}

TEST_F(ImageDriveTest, GoesThroughTheStagesInOrder) {
    FakeContent content(TrackKind::audio, {300, 300});
    burn(content);
    EXPECT_THAT(log_.words, ElementsAre("open 1/2", "write 1/2", "close 1/2", "open 2/2",
                                        "write 2/2", "close 2/2", "session", "finishing"));
    EXPECT_EQ(log_.sectors, 600);
}

TEST_F(ImageDriveTest, AnotherProgramReadsTheCueSheet) {
    FakeContent content(TrackKind::audio, {300, 450}, "Say \"hi\"");
    content.layout(0).title = "First \"one\"";
    content.layout(0).performer = "Somebody";
    EXPECT_EQ(burn(content), "");
    ASSERT_TRUE(std::filesystem::exists(folder_ / "Say 'hi'.bin"));
    const CommandResult info = runCommand({"cd-info", "--no-header", "--no-device-info",
                                           "--no-cddb", (folder_ / "Say 'hi'.cue").string()});
    EXPECT_THAT(info.output, HasSubstr("2: 00:06:00"));
    EXPECT_THAT(info.output, HasSubstr("First 'one'"));
}

TEST_F(ImageDriveTest, AnotherProgramSplitsTheTracks) {
    FakeContent content(TrackKind::audio, {300, 450});
    EXPECT_EQ(burn(content), "");
    const CommandResult split =
        runCommand({"bchunk", "-w", (folder_ / "Disc.bin").string(),
                    (folder_ / "Disc.cue").string(), (folder_ / "t").string()});
    EXPECT_EQ(split.exitCode, 0) << split.output;
    constexpr std::size_t wavHeader = 44;
    EXPECT_EQ(readFile(folder_ / "t01.wav").substr(wavHeader) +
                  readFile(folder_ / "t02.wav").substr(wavHeader),
              content.bytes());
}

TEST_F(ImageDriveTest, ADiscIsNotBlankAfterItsBurnUntilItIsEjected) {
    std::atomic<int> changes = 0;
    drive_->setStateObserver([&changes] { ++changes; });
    FakeContent content(TrackKind::data, {300});
    burn(content);
    EXPECT_EQ(drive_->state().disc, (DiscState{true, true, false, 0}));
    EXPECT_EQ(changes, 1);
    drive_->eject();
    EXPECT_EQ(drive_->state().disc, (DiscState{true, true, true, 359'849}));
    EXPECT_EQ(changes, 2);
    EXPECT_THAT(filesIn(folder_.path()), ElementsAre("Disc.iso"));
}

TEST_F(ImageDriveTest, EjectingABlankDiscIsNoChange) {
    std::atomic<int> changes = 0;
    drive_->setStateObserver([&changes] { ++changes; });
    drive_->eject();
    EXPECT_EQ(changes, 0);
}

TEST_F(ImageDriveTest, AUsedDiscIsRefused) {
    FakeContent content(TrackKind::data, {300});
    burn(content);
    EXPECT_THAT(burn(content), HasSubstr("not blank"));
}

TEST_F(ImageDriveTest, AnExistingNameGetsANumber) {
    folder_.write("Disc.iso", "mine");
    folder_.write("Disc 2.iso", "mine too");
    FakeContent content(TrackKind::data, {300});
    EXPECT_EQ(burn(content), "");
    EXPECT_EQ(readFile(folder_ / "Disc.iso"), "mine");
    EXPECT_EQ(readFile(folder_ / "Disc 2.iso"), "mine too");
    EXPECT_EQ(readFile(folder_ / "Disc 3.iso"), content.bytes());
}

TEST_F(ImageDriveTest, BothFilesOfAPairHaveTheSameNumber) {
    folder_.write("Disc.bin", "mine");
    folder_.write("Disc 2.cue", "mine too");
    FakeContent content(TrackKind::audio, {300});
    EXPECT_EQ(burn(content), "");
    EXPECT_THAT(filesIn(folder_.path()),
                ElementsAre("Disc 2.cue", "Disc 3.bin", "Disc 3.cue", "Disc.bin"));
    EXPECT_THAT(readFile(folder_ / "Disc 3.cue"), HasSubstr("FILE \"Disc 3.bin\" BINARY"));
}

TEST_F(ImageDriveTest, AVeryLongNameIsCutForBothFiles) {
    FakeContent content(TrackKind::audio, {300}, std::string(400, 'x'));
    EXPECT_EQ(burn(content), "");
    EXPECT_THAT(filesIn(folder_.path()),
                ElementsAre(std::string(251, 'x') + ".bin", std::string(251, 'x') + ".cue"));
}

TEST_F(ImageDriveTest, ReadsBackFromTheFileAtAnySector) {
    FakeContent content(TrackKind::audio, {300, 400});
    auto recording = drive_->beginRecording(content, {});
    ASSERT_TRUE(recording.ok());
    ASSERT_TRUE((*recording)->record(content, log_, {}).ok());
    std::vector<std::byte> sectors(2 * audioSectorBytes);
    ASSERT_TRUE((*recording)->readBack(1, 7, sectors, {}).ok());
    for (std::size_t at = 0; at < sectors.size(); ++at) {
        ASSERT_EQ(sectors[at], FakeContent::byteAt(307 * audioSectorBytes + at));
    }
}

TEST_F(ImageDriveTest, NothingHasAFinalNameBeforeTheCommit) {
    FakeContent content(TrackKind::audio, {300});
    auto recording = drive_->beginRecording(content, {});
    ASSERT_TRUE(recording.ok());
    ASSERT_TRUE((*recording)->record(content, log_, {}).ok());
    for (const std::string &name : filesIn(folder_.path())) {
        EXPECT_TRUE(name.starts_with('.')) << name;
    }
    recording->reset();
    EXPECT_THAT(filesIn(folder_.path()), IsEmpty());
    EXPECT_TRUE(drive_->state().disc.blank);
}

TEST_F(ImageDriveTest, EjectIsIgnoredWhileItRecords) {
    FakeContent content(TrackKind::data, {300});
    auto recording = drive_->beginRecording(content, {});
    ASSERT_TRUE(recording.ok());
    ASSERT_TRUE((*recording)->record(content, log_, {}).ok());
    ASSERT_TRUE((*recording)->commit().ok());
    drive_->eject();
    EXPECT_FALSE(drive_->state().disc.blank);
}

TEST_F(ImageDriveTest, ASecondRecordingAtTheSameTimeIsRefused) {
    FakeContent content(TrackKind::data, {300});
    auto first = drive_->beginRecording(content, {});
    ASSERT_TRUE(first.ok());
    EXPECT_THAT(burn(content), HasSubstr("busy"));
    first->reset();
    EXPECT_EQ(burn(content), "");
}

TEST_F(ImageDriveTest, MakesAMissingFolderAtTheFirstBurnIfAsked) {
    const std::filesystem::path missing = folder_ / "new";
    drive_ = ImageDrive::create({missing, 80, true}, "Drive");
    EXPECT_FALSE(std::filesystem::exists(missing));
    FakeContent content(TrackKind::data, {300});
    EXPECT_EQ(burn(content), "");
    EXPECT_THAT(filesIn(missing), ElementsAre("Disc.iso"));
}

TEST_F(ImageDriveTest, LeftoversOfADeadProcessAreRemovedAndThoseOfALivingOneAreNot) {
    folder_.write(".scorch-1-0.part", "left behind");
    FakeContent content(TrackKind::data, {300});
    auto living = ImageDrive::create({folder_.path(), 80, false}, "Other");
    auto recording = living->beginRecording(content, {});
    ASSERT_TRUE(recording.ok());
    EXPECT_EQ(burn(content), "");
    EXPECT_FALSE(std::filesystem::exists(folder_ / ".scorch-1-0.part"));
    ASSERT_TRUE((*recording)->record(content, log_, {}).ok());
    EXPECT_TRUE((*recording)->commit().ok());
    EXPECT_THAT(filesIn(folder_.path()), ElementsAre("Disc 2.iso", "Disc.iso"));
}
