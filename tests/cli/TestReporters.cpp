// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DisplayText.h"
#include "cli/JsonReporter.h"
#include "cli/TerminalReporter.h"
#include "cli/TextReporter.h"
#include "engine/ScorcherDevice.h"
#include "tests/cli/CapturedOutput.h"
#include "tests/support/FakeEngine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace cli;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

template <class AnyReporter>
class ReporterTest : public testing::Test {
protected:
    CapturedOutput out;
    CapturedOutput err;
    AnyReporter reporter{out.output(), err.output()};
};

using TextReporterTest = ReporterTest<TextReporter>;
using TerminalReporterTest = ReporterTest<TerminalReporter>;
using JsonReporterTest = ReporterTest<JsonReporter>;

const RefusedFile badSong = {"/music/\x1b\xFF.mp3", "It is not sound."};

BurnSummary summary() {
    BurnSummary summary;
    summary.items = 3;
    summary.capacity = std::uint64_t{75} * 60 * 12;
    summary.discName = "Road trip";
    summary.driveName = "Disc image (x)";
    summary.leftOut = 2;
    return summary;
}

} // namespace

TEST_F(TextReporterTest, EachStepIsALine) {
    reporter.step({BurnStage::checking});
    reporter.checking("a.mp3", 1, 2);
    reporter.step({BurnStage::writingTrack, 1, 2});
    reporter.progress(0.5, 100);
    reporter.step({BurnStage::verifying});
    EXPECT_EQ(out.text(), "Checking files\nWriting track 1 of 2\nVerifying\n");
    EXPECT_EQ(err.text(), "");
}

TEST_F(TextReporterTest, RefusedFilesAreNamedOnTheErrorOutput) {
    reporter.refused(badSong, RefusalKind::incompatibleFile);
    EXPECT_EQ(out.text(), "");
    EXPECT_EQ(err.text(), "scorch: /music/\\x1b\\xff.mp3: It is not sound.\n");
}

TEST_F(TextReporterTest, EndSaysWhatWasBurnedAndWhatWasLeftOut) {
    reporter.finished(summary());
    EXPECT_EQ(out.text(),
              "Burned \"Road trip\" (3 tracks, 12:00) with Disc image (x) and verified it.\n");
    EXPECT_EQ(err.text(), "scorch: 2 files were left out of the disc.\n");
}

TEST_F(TextReporterTest, ErrorHasItsDetail) {
    reporter.failed({ScorchErrorCode::targetFull, "The folder is full.", "ENOSPC"});
    EXPECT_EQ(err.text(), "scorch: The folder is full. [ENOSPC]\n");
}

TEST(ReporterTexts, CountsHaveTheirNumber) {
    EXPECT_EQ(leftOutText(0), "");
    EXPECT_EQ(leftOutText(1), "1 file was left out of the disc.");
    BurnSummary data = summary();
    data.kind = DiscKind::data;
    data.items = 1;
    data.capacity = 1'000'000;
    data.verified = false;
    EXPECT_EQ(summaryText(data), "Burned \"Road trip\" (1 item, 1.0 MB) with Disc image (x).");
}

TEST_F(TerminalReporterTest, OneLineIsRewrittenInPlace) {
    reporter.step({BurnStage::preparing});
    reporter.step({BurnStage::verifying});
    EXPECT_EQ(out.text(), "\rPreparing\x1b[K\rVerifying\x1b[K");
}

TEST_F(TerminalReporterTest, LineIsClearedBeforeOtherTextAndAtTheEnd) {
    reporter.step({BurnStage::preparing});
    reporter.refused(badSong, RefusalKind::protectedFile);
    EXPECT_THAT(out.text(), EndsWith("\r\x1b[K"));
    reporter.step({BurnStage::verifying});
    reporter.finished(summary());
    EXPECT_THAT(out.text(), HasSubstr("Verifying\x1b[K\r\x1b[KBurned"));
    EXPECT_THAT(out.text(), EndsWith("\n"));
}

TEST(TerminalReporterEnd, LineIsClearedEvenIfNothingEndsIt) {
    CapturedOutput out;
    CapturedOutput err;
    {
        TerminalReporter reporter(out.output(), err.output());
        reporter.step({BurnStage::preparing});
    }
    EXPECT_THAT(out.text(), EndsWith("\r\x1b[K"));
}

TEST(ProgressLine, ShowsTextBarPercentAndTimeLeft) {
    EXPECT_EQ(progressLineText({"Writing", 0.45, 75 * 83}, 60),
              "Writing  [=============>                 ]   45 %  1:23 left");
    EXPECT_EQ(progressLineText({"Writing", 1.0, 0}, 40),
              "Writing  [===========]  100 %  0:00 left");
}

TEST(ProgressLine, HundredPercentIsTheEndOnly) {
    EXPECT_THAT(progressLineText({"Verifying", 0.9999, {}}, 79), HasSubstr(" 99 %"));
    EXPECT_THAT(progressLineText({"Verifying", 1.5, {}}, 79), HasSubstr("100 %"));
}

TEST(ProgressLine, FitsAnyWidth) {
    const ProgressLine line{"Checking 1 of 2: \xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E.flac", 0.5,
                            75 * 60};
    for (std::size_t columns = 0; columns < 200; ++columns) {
        EXPECT_LE(columnsOf(progressLineText(line, columns)), columns);
    }
}

TEST(ProgressLine, BarGoesFirstThenTheTimeThenTheText) {
    const ProgressLine line{"Writing track 3 of 12", 0.5, 75 * 60};
    EXPECT_THAT(progressLineText(line, 60), HasSubstr("=>"));
    EXPECT_EQ(progressLineText(line, 40), "Writing track 3 of 12   50 %  1:00 left");
    EXPECT_EQ(progressLineText(line, 30), "Writing track 3 of 12   50 %");
    EXPECT_EQ(progressLineText(line, 20), "Writing trac…   50 %");
}

TEST_F(JsonReporterTest, EveryCallIsAnObject) {
    reporter.step({BurnStage::writingTrack, 1, 2});
    reporter.progress(0.5, 75);
    reporter.checking("a", 1, 2);
    reporter.finished(summary());
    EXPECT_EQ(out.text(),
              "{\"event\":\"stage\",\"stage\":\"writingTrack\",\"track\":1,\"tracks\":2}\n"
              "{\"event\":\"progress\",\"fraction\":0.5000,\"leftFrames\":75}\n"
              "{\"event\":\"checking\",\"name\":\"a\",\"index\":1,\"count\":2}\n"
              "{\"event\":\"done\",\"name\":\"Road trip\",\"drive\":\"Disc image (x)\","
              "\"tracks\":3,\"frames\":54000,\"verified\":true,\"leftOut\":2}\n");
    EXPECT_EQ(err.text(), "");
}

TEST_F(JsonReporterTest, TroubleIsToldOnBothOutputs) {
    reporter.refused(badSong, RefusalKind::protectedFile);
    reporter.failed({ScorchErrorCode::targetFull, "Full.", "ENOSPC"});
    EXPECT_EQ(out.text(),
              "{\"event\":\"refused\",\"path\":\"/music/\\u001b\xEF\xBF\xBD.mp3\","
              "\"pathPercentEncoded\":\"/music/%1B%FF.mp3\",\"kind\":\"protected\","
              "\"reason\":\"It is not sound.\"}\n"
              "{\"event\":\"error\",\"code\":42,\"message\":\"Full.\",\"detail\":\"ENOSPC\"}\n");
    EXPECT_THAT(err.text(), HasSubstr("It is not sound."));
    EXPECT_THAT(err.text(), HasSubstr("Full."));
}

TEST_F(TextReporterTest, CancelledBurnSaysWhatTheDriveHasNow) {
    FakeEngine engine;
    engine.addDrive("A");
    reporter.cancelled(nullptr);
    EXPECT_EQ(err.text(), "scorch: cancelled\n");
    engine.drive("A").isBlank = false;
    reporter.cancelled(ScorcherDevice::initWithDeviceName("A").get());
    EXPECT_THAT(err.text(), EndsWith("scorch: cancelled. Disc now: a CD that is not blank\n"));
}

TEST_F(JsonReporterTest, CancelledBurnSaysWhatTheDriveHasNowInAWord) {
    FakeEngine engine;
    engine.addDrive("A");
    reporter.cancelled(ScorcherDevice::initWithDeviceName("A").get());
    EXPECT_THAT(out.text(), EndsWith("{\"event\":\"cancelled\",\"disc\":\"blank\"}\n"));
}
