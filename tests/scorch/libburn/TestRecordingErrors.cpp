// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/RecordingErrors.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::AllOf;
using testing::HasSubstr;

namespace {

const DriveErrorContext context{.driveName = "Drive", .node = "/nowhere", .sector = std::nullopt};
const SessionPlan plan{TrackKind::audio, {300, 400}};

LibburnMessage error(int code, std::string text, int systemError = 0) {
    return {.isError = true, .code = code, .systemError = systemError, .text = std::move(text)};
}

const LibburnMessage runFailed = error(0x2010B, "Burn run failed");
const LibburnMessage writeError =
    error(0x2011D, "SCSI error on write(1191,13): [3 0C 00] Medium error. Write error.");

MediumState blankDisc() {
    MediumState medium;
    medium.kind = MediumState::Kind::cdR;
    medium.contents = MediumState::Contents::blank;
    medium.freeSectors = 700;
    return medium;
}

ScorchErrorCode refusalAfter(const std::function<void(MediumState &)> &change) {
    MediumState medium = blankDisc();
    change(medium);
    const auto refusal = refusalOf(medium, plan, "Drive");
    return refusal ? refusal->category() : ScorchErrorCode::internal;
}

} // namespace

TEST(WritingErrors, SenseOfTheFirstFailureCounts) {
    const ScorchError told = writingError(
        {writeError, error(0x2017F, "SCSI error : [2 3A 02] Tray open."), runFailed}, context);
    EXPECT_EQ(told.category(), ScorchErrorCode::writeFailed);
    EXPECT_THAT(told.localizedDescription(), AllOf(HasSubstr("“Drive”"), HasSubstr("1191")));
    EXPECT_THAT(told.detail(), HasSubstr("3/0C/00"));
}

TEST(WritingErrors, DriveThatIsGoneIsToldAboveAll) {
    const ScorchError told = writingError(
        {error(0x2010C, "Failed to transfer command to drive", 19), writeError}, context);
    EXPECT_EQ(told.category(), ScorchErrorCode::driveGone);
}

TEST(WritingErrors, DriveThatDoesNotAnswerIsNoMediumError) {
    const LibburnMessage silence =
        error(0x201A7, "SCSI command 2Ah yielded host problem: 0x3 SG_ERR_DID_TIME_OUT");
    EXPECT_EQ(writingError({silence, writeError}, context).category(),
              ScorchErrorCode::driveSilent);
    EXPECT_EQ(writingError({writeError, silence}, context).category(),
              ScorchErrorCode::writeFailed);
}

TEST(WritingErrors, FailureWithoutAReasonIsStillOne) {
    EXPECT_EQ(writingError({}, context).category(), ScorchErrorCode::writeFailed);
    EXPECT_THAT(writingError({runFailed}, context).detail(), HasSubstr("Burn run failed"));
}

TEST(RefusedDiscs, BlankDiscWithRoomIsTaken) {
    EXPECT_EQ(refusalOf(blankDisc(), plan, "Drive"), std::nullopt);
}

TEST(RefusedDiscs, EachReasonHasItsCode) {
    using Contents = MediumState::Contents;
    using Kind = MediumState::Kind;
    EXPECT_EQ(refusalAfter([](MediumState &medium) { medium.kind = Kind::none; }),
              ScorchErrorCode::noDisc);
    EXPECT_EQ(refusalAfter([](MediumState &medium) { medium.kind = Kind::other; }),
              ScorchErrorCode::discNotSuitable);
    EXPECT_EQ(refusalAfter([](MediumState &medium) { medium.kind = Kind::cdRom; }),
              ScorchErrorCode::discNotBlank);
    EXPECT_EQ(refusalAfter([](MediumState &medium) { medium.contents = Contents::appendable; }),
              ScorchErrorCode::discNotBlank);
    EXPECT_EQ(refusalAfter([](MediumState &medium) { medium.contents = Contents::complete; }),
              ScorchErrorCode::discNotBlank);
}

TEST(RefusedDiscs, DiscWithoutTracksIsNone) {
    EXPECT_EQ(refusalOf(blankDisc(), SessionPlan{}, "Drive")->category(),
              ScorchErrorCode::nothingToBurn);
}

TEST(RefusedDiscs, PlanMustFitToTheSector) {
    EXPECT_EQ(refusalAfter([](MediumState &medium) { medium.freeSectors = 699; }),
              ScorchErrorCode::doesNotFit);
}

TEST(RefusedDiscs, NinetyNineTracksAreTheMost) {
    MediumState medium = blankDisc();
    medium.freeSectors = 359'849;
    const SessionPlan most{TrackKind::audio, std::vector<std::int64_t>(99, 300)};
    const SessionPlan more{TrackKind::audio, std::vector<std::int64_t>(100, 300)};
    EXPECT_EQ(refusalOf(medium, most, "Drive"), std::nullopt);
    EXPECT_EQ(refusalOf(medium, more, "Drive")->category(), ScorchErrorCode::tooManyTracks);
}

TEST(ReadBackErrors, NameTheSongOrTheFile) {
    EXPECT_THAT(readBackError(TrackKind::audio, 1, "Song", "").localizedDescription(),
                HasSubstr("Track 2, “Song”"));
    EXPECT_THAT(readBackError(TrackKind::data, 0, "a/file", "").localizedDescription(),
                HasSubstr("“a/file”"));
    EXPECT_THAT(readBackError(TrackKind::data, 0, "", "").localizedDescription(),
                HasSubstr("table of contents"));
    EXPECT_EQ(readBackError(TrackKind::data, 0, "", "").category(), ScorchErrorCode::verifyFailed);
}
