// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/CommandLine.h"

#include "tests/support/CommandResult.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <vector>

namespace {

using crate::CommandLine;
using crate::parseCommandLine;
using crate::UsageError;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Parsed = std::variant<CommandLine, UsageError>;

Parsed parse(std::initializer_list<const char *> arguments) {
    return parseCommandLine(std::vector<const char *>(arguments));
}

CommandLine good(std::initializer_list<const char *> arguments) {
    const Parsed parsed = parse(arguments);
    const auto *line = std::get_if<CommandLine>(&parsed);
    EXPECT_NE(line, nullptr);
    return line != nullptr ? *line : CommandLine();
}

std::string errorOf(std::initializer_list<const char *> arguments) {
    const Parsed parsed = parse(arguments);
    const auto *error = std::get_if<UsageError>(&parsed);
    return error != nullptr ? error->message : std::string();
}

std::filesystem::path here(const char *name) {
    return std::filesystem::current_path() / name;
}

TEST(CommandLine, NoArgumentsAskForNothing) {
    const CommandLine line = good({});
    EXPECT_EQ(line.action, CommandLine::Action::run);
    EXPECT_FALSE(line.musicFolder || line.imageDrive || line.toolName || line.usageLog);
    EXPECT_THAT(line.files, IsEmpty());
}

TEST(CommandLine, OptionsTakeTheirValueBehindABlankOrAnEqualsSign) {
    const CommandLine blank = good({"--music", "/m", "--image-drive", "/i", "--tool", "CD Burner",
                                    "--usage-log", "/log", "/a.flac"});
    EXPECT_EQ(blank.musicFolder, "/m");
    EXPECT_EQ(blank.imageDrive, "/i");
    EXPECT_EQ(blank.toolName, QStringLiteral("CD Burner"));
    EXPECT_EQ(blank.usageLog, "/log");
    EXPECT_THAT(blank.files, ElementsAre("/a.flac"));
    const CommandLine equals = good({"--music=/m=n", "/a", "--tool=Zürich"});
    EXPECT_EQ(equals.musicFolder, "/m=n");
    EXPECT_EQ(equals.toolName, QStringLiteral("Zürich"));
    EXPECT_THAT(equals.files, ElementsAre("/a"));
}

TEST(CommandLine, LastOptionOfAKindCounts) {
    EXPECT_EQ(good({"--music", "/a", "--music=/b"}).musicFolder, "/b");
}

TEST(CommandLine, RelativePathsBecomeAbsolute) {
    const CommandLine line = good({"--music", "m", "--usage-log", "log", "a b.flac"});
    EXPECT_EQ(line.musicFolder, here("m"));
    EXPECT_EQ(line.usageLog, here("log"));
    EXPECT_THAT(line.files, ElementsAre(here("a b.flac")));
}

TEST(CommandLine, ImageDriveIsPassedAsItStands) {
    EXPECT_EQ(good({"--image-drive", "discs,minutes=74:/more"}).imageDrive,
              "discs,minutes=74:/more");
}

TEST(CommandLine, BytesOfPathsAreKept) {
    const CommandLine line =
        good({"/\xff\xfe.flac", "--music", "/caf\xe9", "--image-drive", "/\x80"});
    EXPECT_EQ(line.files.at(0).native(), "/\xff\xfe.flac");
    EXPECT_EQ(line.musicFolder->native(), "/caf\xe9");
    EXPECT_EQ(line.imageDrive, QByteArray("/\x80"));
}

TEST(CommandLine, EverythingBehindTwoDashesIsAFile) {
    EXPECT_THAT(good({"--", "--help", "-x", "--"}).files,
                ElementsAre(here("--help"), here("-x"), here("--")));
    EXPECT_THAT(good({"-"}).files, ElementsAre(here("-")));
}

TEST(CommandLine, HelpAndVersion) {
    EXPECT_EQ(good({"--help"}).action, CommandLine::Action::showHelp);
    EXPECT_EQ(good({"-h"}).action, CommandLine::Action::showHelp);
    EXPECT_EQ(good({"--version"}).action, CommandLine::Action::showVersion);
}

TEST(CommandLine, BadUsageIsNamed) {
    EXPECT_THAT(errorOf({"--colour=red"}), HasSubstr("--colour"));
    EXPECT_THAT(errorOf({"-x"}), HasSubstr("-x"));
    EXPECT_THAT(errorOf({"a.flac", "--music"}), HasSubstr("--music"));
    EXPECT_THAT(errorOf({"--music="}), HasSubstr("--music"));
    EXPECT_THAT(errorOf({"--tool", ""}), HasSubstr("--tool"));
    EXPECT_THAT(errorOf({""}), HasSubstr("file name"));
}

TEST(CommandLine, HelpNamesEveryOption) {
    for (const char *option :
         {"--music", "--image-drive", "--tool", "--usage-log", "--help", "--version"}) {
        EXPECT_THAT(crate::helpText(), HasSubstr(option));
    }
}

TEST(CrateProgram, ExitsWithoutAWindowWhenThatIsEnough) {
    // A platform that does not exist: none of these may need one.
    const auto run = [](const char *argument) {
        return runCommand({"env", "QT_QPA_PLATFORM=none", CRATE_PROGRAM, argument});
    };
    EXPECT_EQ(run("--help").exitCode, 0);
    EXPECT_EQ(run("--help").output, crate::helpText());
    EXPECT_EQ(run("--version").exitCode, 0);
    EXPECT_THAT(run("--version").output, HasSubstr(CDBURNER_VERSION));
    EXPECT_EQ(run("--nonsense").exitCode, 2);
    EXPECT_THAT(run("--nonsense").output, HasSubstr("unknown option --nonsense"));
}

TEST(CrateProgram, UsageLogThatCannotBeWrittenIsAnError) {
    const CommandResult result = runCommand({CRATE_PROGRAM, "--usage-log", "/nowhere/log"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("/nowhere/log"));
}

} // namespace
