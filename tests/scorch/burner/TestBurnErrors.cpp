// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/BurnErrors.h"

#include <gmock/gmock.h>

#include <cerrno>

using namespace scorch;
using testing::HasSubstr;

TEST(BurnErrors, WhatDoesNotFitIsTimesForSoundAndSizesForData) {
    const ScorchError sound = doesNotFitError(TrackKind::audio, 360'000, 359'849);
    EXPECT_EQ(sound.category(), ScorchErrorCode::doesNotFit);
    EXPECT_THAT(sound.localizedDescription(), HasSubstr("80:00"));
    EXPECT_THAT(sound.localizedDescription(), HasSubstr("79:57"));
    const ScorchError data = doesNotFitError(TrackKind::data, 500'000, 359'849);
    EXPECT_THAT(data.localizedDescription(), HasSubstr("1.0 GB"));
    EXPECT_THAT(data.localizedDescription(), HasSubstr("737.0 MB"));
}

TEST(BurnErrors, ADiscIsJudgedByWhatIsWrongWithItFirst) {
    DriveState state;
    EXPECT_EQ(discError("D", state)->category(), ScorchErrorCode::discNotSuitable);
    state.canWriteCd = true;
    EXPECT_EQ(discError("D", state)->category(), ScorchErrorCode::noDisc);
    state.disc.present = true;
    EXPECT_EQ(discError("D", state)->category(), ScorchErrorCode::discNotSuitable);
    state.disc.isCd = true;
    EXPECT_EQ(discError("D", state)->category(), ScorchErrorCode::discNotBlank);
    state.disc.blank = true;
    EXPECT_FALSE(discError("D", state));
}

TEST(BurnErrors, ASourceIsNamedWithTheReason) {
    EXPECT_EQ(sourceError("/a/\xFF.mp3", ENOENT).category(), ScorchErrorCode::sourceMissing);
    const ScorchError error = sourceError("/a/b.mp3", EACCES);
    EXPECT_EQ(error.category(), ScorchErrorCode::sourceUnreadable);
    EXPECT_THAT(error.localizedDescription(), HasSubstr("/a/b.mp3"));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("Permission denied"));
}

TEST(BurnErrors, ADifferenceNamesTheSongTheFileOrTheDirectory) {
    EXPECT_THAT(differenceError(TrackKind::audio, 2, 7, "Blue").localizedDescription(),
                HasSubstr("Track 3, “Blue”"));
    EXPECT_THAT(differenceError(TrackKind::data, 0, 7, "a/b.txt").localizedDescription(),
                HasSubstr("“a/b.txt”"));
    EXPECT_THAT(differenceError(TrackKind::data, 0, 7, "").localizedDescription(),
                HasSubstr("table of contents"));
    EXPECT_EQ(differenceError(TrackKind::data, 0, 7, "").detail(), "track 1, sector 7");
}
