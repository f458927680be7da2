// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/ScorchError.h"

#include <gtest/gtest.h>

TEST(ScorchError, TellsItsFailureThreeWays) {
    const ScorchError error(ScorchErrorCode::targetFull, "The folder is full.", "ENOSPC");
    EXPECT_EQ(error.category(), ScorchErrorCode::targetFull);
    EXPECT_EQ(error.code(), 42);
    EXPECT_EQ(error.localizedDescription(), "The folder is full.");
    EXPECT_EQ(error.detail(), "ENOSPC");
}

TEST(ScorchError, DetailMayBeLeftOut) {
    EXPECT_EQ(ScorchError(ScorchErrorCode::noDrive, "None.").detail(), "");
}

TEST(ScorchError, NumbersAreForEver) {
    const std::pair<ScorchErrorCode, int> numbers[] = {
        {ScorchErrorCode::internal, 1},         {ScorchErrorCode::nothingToBurn, 10},
        {ScorchErrorCode::tooManyTracks, 11},   {ScorchErrorCode::doesNotFit, 12},
        {ScorchErrorCode::burnerBusy, 13},      {ScorchErrorCode::noDrive, 20},
        {ScorchErrorCode::driveBusy, 21},       {ScorchErrorCode::driveGone, 22},
        {ScorchErrorCode::noDisc, 23},          {ScorchErrorCode::discNotBlank, 24},
        {ScorchErrorCode::discNotSuitable, 25}, {ScorchErrorCode::finishedBeforeStop, 26},
        {ScorchErrorCode::sourceMissing, 30},   {ScorchErrorCode::sourceUnreadable, 31},
        {ScorchErrorCode::sourceChanged, 32},   {ScorchErrorCode::sourceTooShort, 33},
        {ScorchErrorCode::targetMissing, 40},   {ScorchErrorCode::targetNotWritable, 41},
        {ScorchErrorCode::targetFull, 42},      {ScorchErrorCode::writeFailed, 43},
        {ScorchErrorCode::verifyFailed, 50},
    };
    for (const auto &[code, number] : numbers) {
        EXPECT_EQ(ScorchError(code, "").code(), number);
    }
}
