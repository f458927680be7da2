// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/Burning.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Ended {
    int exitCode;
    std::string output;
    std::string errors;
};

class ExitCodes : public Burning {
protected:
    static Ended run(const std::vector<std::string> &arguments,
                     const std::vector<std::string> &environment = {}) {
        ScorchProcess scorch(arguments, environment);
        const int exitCode = scorch.wait();
        return {exitCode, scorch.output(), scorch.errors()};
    }
};

} // namespace

TEST_F(ExitCodes, WrongArgumentsAreUsage) {
    EXPECT_EQ(run({}).exitCode, 2);
    EXPECT_EQ(run({"burn", "--audio"}).exitCode, 2);
    EXPECT_THAT(run({"burn", "x"}).errors, HasSubstr("--audio or --data"));
}

TEST_F(ExitCodes, HelpAndVersionAreDone) {
    const Ended help = run({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output, HasSubstr("EXIT STATUS"));
    EXPECT_EQ(run({"--version"}).output, "scorch " CDBURNER_VERSION "\n");
}

TEST_F(ExitCodes, DrivesAreListed) {
    const Ended drives = run({"drives", "--image-drive", imageFolder.string() + ",minutes=74"});
    EXPECT_EQ(drives.exitCode, 0);
    EXPECT_EQ(drives.output, "Disc image (images): blank CD, 73:57 or 681.7 MB free\n");
}

TEST_F(ExitCodes, SeveralDrivesNeedAChoice) {
    fs::create_directory(folder / "other");
    const std::vector<std::string> both = {"SCORCH_IMAGE_DRIVE=" + imageFolder.string() + ":" +
                                           (folder / "other").string()};
    const std::string song = medium("short.wav");
    const Ended none = run({"burn", "--audio", song}, both);
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_THAT(none.errors, AllOf(HasSubstr("Disc image (images)"), HasSubstr("(other)")));
    EXPECT_EQ(run({"burn", "--audio", "--drive", "Disc image (images)", song}, both).exitCode, 0);
    EXPECT_THAT(images(), ElementsAre("Untitled.bin", "Untitled.cue"));
}

TEST_F(ExitCodes, HundredTracksDoNotFit) {
    const std::vector<std::string> songs(100, medium("short.wav"));
    const Ended ended = run(burnArguments("audio", "Many", songs));
    EXPECT_EQ(ended.exitCode, 3) << ended.errors;
    EXPECT_THAT(ended.errors, HasSubstr("99"));
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(ExitCodes, NinetyNineTracksFit) {
    const std::vector<std::string> songs(99, medium("short.wav"));
    const Ended ended = run(burnArguments("audio", "Many", songs));
    EXPECT_EQ(ended.exitCode, 0) << ended.errors;
    EXPECT_EQ(fs::file_size(image("Many.bin")), 99U * 300U * 2352U);
}

TEST_F(ExitCodes, TooLongDoesNotFit) {
    const std::string song = silentSong("long.wav", 60 * 80);
    const Ended ended = run(burnArguments("audio", "Long", {song}));
    EXPECT_EQ(ended.exitCode, 3) << ended.errors;
    EXPECT_THAT(ended.errors, HasSubstr("too little"));
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(ExitCodes, TooBigDoesNotFit) {
    const std::string file = sparseFile("big", 737'000'000);
    const Ended ended = run(burnArguments("data", "Big", {file}));
    EXPECT_EQ(ended.exitCode, 3) << ended.errors;
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(ExitCodes, SmallerDiscHoldsLess) {
    const std::string song = silentSong("song.wav", 70);
    const std::string one = imageFolder.string() + ",minutes=1";
    EXPECT_EQ(run({"burn", "--audio", "--image-drive", one, song}).exitCode, 3);
}

TEST_F(ExitCodes, NothingThatCanBeBurnedIsNothingToBurn) {
    const Ended ended =
        run(burnArguments("audio", "None", {medium("text.txt"), folder / "missing.flac"}));
    EXPECT_EQ(ended.exitCode, 4) << ended.errors;
    EXPECT_THAT(ended.errors, AllOf(HasSubstr("text.txt: "), HasSubstr("missing.flac: ")));
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(ExitCodes, RefusedFilesAreNamedAndTheRestIsBurned) {
    const Ended ended = run(burnArguments(
        "audio", "Rest", {medium("text.txt"), medium("short.wav"), medium("protected-drms.m4a")}));
    EXPECT_EQ(ended.exitCode, 0) << ended.errors;
    EXPECT_THAT(ended.errors, AllOf(HasSubstr("text.txt: "), HasSubstr("protected-drms.m4a: "),
                                    HasSubstr("2 files were left out")));
    EXPECT_EQ(fs::file_size(image("Rest.bin")), 300U * 2352U);
}

TEST_F(ExitCodes, MissingFolderFailsWithAText) {
    const std::string missing = folder / "missing";
    const Ended ended = run({"burn", "--audio", "--image-drive", missing, medium("short.wav")});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_THAT(ended.errors, HasSubstr("missing"));
    EXPECT_FALSE(fs::exists(missing));
}

TEST_F(ExitCodes, MissingFolderIsMadeOnRequest) {
    const std::string made = folder / "made, here: yes";
    const Ended ended =
        run({"burn", "--audio", "--image-drive", made + ",create", medium("short.wav")});
    EXPECT_EQ(ended.exitCode, 0) << ended.errors;
    EXPECT_TRUE(fs::exists(fs::path(made) / "Untitled.cue"));
}

TEST_F(ExitCodes, FolderThatIsAFileFails) {
    const std::string file = folder.write("file", "");
    EXPECT_EQ(run({"burn", "--audio", "--image-drive", file, medium("short.wav")}).exitCode, 1);
    EXPECT_EQ(run({"burn", "--audio", "--image-drive", "/proc", medium("short.wav")}).exitCode, 1);
}

TEST_F(ExitCodes, UnknownDriveFailsAndNamesThoseThatAreThere) {
    const Ended ended = run({"burn", "--audio", "--drive", "Nonesuch", medium("short.wav")},
                            {"SCORCH_IMAGE_DRIVE=" + imageFolder.string()});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_THAT(ended.errors, AllOf(HasSubstr("Nonesuch"), HasSubstr("Disc image (images)")));
}

TEST_F(ExitCodes, VerificationCanBeLeftOut) {
    const std::string song = medium("short.wav");
    const std::string target = imageFolder;
    EXPECT_THAT(run({"burn", "--audio", "--image-drive", target, song}).output,
                HasSubstr("Verifying"));
    const Ended without = run({"burn", "--audio", "--no-verify", "--image-drive", target, song});
    EXPECT_EQ(without.exitCode, 0);
    EXPECT_THAT(without.output, testing::Not(HasSubstr("erif")));
    EXPECT_THAT(images(),
                ElementsAre("Untitled 2.bin", "Untitled 2.cue", "Untitled.bin", "Untitled.cue"));
}
