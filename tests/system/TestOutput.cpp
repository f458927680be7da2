// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/CommandResult.h"
#include "tests/support/HeldImages.h"
#include "tests/system/Burning.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sstream>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Outputs : public Burning {
protected:
    /// Every line is an object for a JSON reader that is not ours.
    void expectJsonLines(const std::string &text) const {
        const std::string file = folder.write("lines.json", text);
        const CommandResult result =
            runCommand({"python3", "-m", "json.tool", "--json-lines", file});
        EXPECT_EQ(result.exitCode, 0) << result.output << text;
    }
};

} // namespace

TEST_F(Outputs, StagesAreLinesInOrder) {
    ScorchProcess scorch(burnArguments("audio", "Two", {medium("short.wav"), medium("song.wav")}));
    EXPECT_EQ(scorch.wait(), 0) << scorch.errors();
    EXPECT_THAT(scorch.output(),
                StartsWith("Checking files\nPreparing\n"
                           "Opening track 1 of 2\nWriting track 1 of 2\nClosed track 1 of 2\n"
                           "Opening track 2 of 2\nWriting track 2 of 2\nClosed track 2 of 2\n"
                           "Closed the session\nFinishing the disc\nVerifying\nBurned \"Two\" (2 "
                           "tracks, 0:0"));
    EXPECT_EQ(scorch.errors(), "");
}

TEST_F(Outputs, JsonIsReadByAnotherProgram) {
    folder.write("caf\xE9 \"x\"\n.txt", "no song");
    std::vector<std::string> arguments =
        burnArguments("audio", "日本 \"x\"", {medium("song.wav"), folder / "caf\xE9 \"x\"\n.txt"});
    arguments.insert(arguments.begin(), "--json");
    ScorchProcess scorch(arguments, {"LC_ALL=de_DE.UTF-8"});
    EXPECT_EQ(scorch.wait(), 0) << scorch.errors();
    expectJsonLines(scorch.output());
    EXPECT_THAT(scorch.output(), HasSubstr("\"event\":\"stage\",\"stage\":\"verifying\""));
    EXPECT_THAT(scorch.output(), HasSubstr("caf%E9%20%22x%22%0A.txt"));
    EXPECT_THAT(scorch.output(), HasSubstr("\"name\":\"日本 \\\"x\\\"\""));
    EXPECT_THAT(scorch.output(), EndsWith("\"leftOut\":1}\n"));
}

TEST_F(Outputs, JsonEndsWithItsErrorOrCancel) {
    ScorchProcess failing(
        {"burn", "--json", "--audio", "--image-drive", folder / "missing", medium("short.wav")});
    EXPECT_EQ(failing.wait(), 1);
    expectJsonLines(failing.output());
    EXPECT_THAT(failing.output(), HasSubstr("\"event\":\"error\",\"code\":40,"));
    std::vector<std::string> arguments =
        burnArguments("data", "Large", {sparseFile("large", 100U << 20U)});
    arguments.insert(arguments.begin(), "--json");
    const HeldImages held(imageFolder);
    ScorchProcess cancelled(arguments, held.environment());
    ASSERT_TRUE(cancelled.waitForOutput("writingTrack"));
    cancelled.sendSignal(SIGINT);
    EXPECT_TRUE(cancelled.waitForOutput("cancelling"));
    held.release();
    EXPECT_EQ(cancelled.wait(), 130);
    expectJsonLines(cancelled.output());
    EXPECT_THAT(cancelled.output(), EndsWith("{\"event\":\"cancelled\"}\n"));
}

TEST_F(Outputs, DrivesAreListedAsJson) {
    ScorchProcess scorch({"drives", "--json", "--image-drive", imageFolder});
    EXPECT_EQ(scorch.wait(), 0);
    expectJsonLines(scorch.output());
    EXPECT_THAT(scorch.output(), HasSubstr("\"freeFrames\":359849,\"freeBytes\":736970752"));
}

TEST_F(Outputs, TerminalShowsOneLineAndIsLeftClean) {
    ScorchProcess scorch(burnArguments("audio", "Song", {medium("song.flac")}),
                         {"TERM=xterm", "SCORCH_VERIFY=1"}, ScorchProcess::Output::terminal);
    EXPECT_EQ(scorch.wait(), 0) << scorch.errors();
    const std::string &screen = scorch.output();
    const std::size_t last = screen.rfind("\r\x1b[K");
    ASSERT_NE(last, std::string::npos) << screen;
    EXPECT_THAT(screen.substr(last), StartsWith("\r\x1b[KBurned \"Song\""));
    EXPECT_EQ(std::count(screen.begin(), screen.end(), '\n'), 1) << screen;
    std::istringstream updates(screen.substr(0, last));
    for (std::string update; std::getline(updates, update, '\r');) {
        EXPECT_LE(update.size(), 59U + 3U)
            << update; // 60 columns, and the code that clears the rest
    }
}

TEST_F(Outputs, TerminalIsLeftCleanAfterCtrlC) {
    const HeldImages held(imageFolder);
    std::vector<std::string> environment = held.environment();
    environment.emplace_back("TERM=xterm");
    ScorchProcess scorch(burnArguments("data", "Large", {sparseFile("large", 100U << 20U)}),
                         environment, ScorchProcess::Output::terminal);
    ASSERT_TRUE(scorch.waitForOutput("Writing track 1")) << scorch.errors();
    scorch.sendSignal(SIGINT);
    EXPECT_TRUE(scorch.waitForOutput("Cancelling"));
    held.release();
    EXPECT_EQ(scorch.wait(), 130);
    EXPECT_THAT(scorch.output(), EndsWith("\r\x1b[K"));
}

TEST_F(Outputs, DumbTerminalGetsLines) {
    ScorchProcess scorch(burnArguments("audio", "Song", {medium("short.wav")}), {"TERM=dumb"},
                         ScorchProcess::Output::terminal);
    EXPECT_EQ(scorch.wait(), 0) << scorch.errors();
    EXPECT_THAT(scorch.output(), Not(HasSubstr("\x1b")));
    EXPECT_THAT(scorch.output(), HasSubstr("Preparing\r\n"));
}
