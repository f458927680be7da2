// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/CommandResult.h"
#include "tests/system/Burning.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class DiscNames : public Burning {
protected:
    /// The files that a disc of that name ends up in.
    std::vector<std::string> burned(const std::string &kind, const std::string &name) {
        burn(kind, name, {medium("short.wav")});
        return images();
    }
};

} // namespace

TEST_F(DiscNames, JapaneseStaysWhole) {
    EXPECT_THAT(burned("data", "写真 二〇二四"), ElementsAre("写真 二〇二四.iso"));
}

TEST_F(DiscNames, SlashAndControlCharactersAreReplaced) {
    EXPECT_THAT(burned("data", "AC/DC\n\x1b"), ElementsAre("AC_DC__.iso"));
}

TEST_F(DiscNames, EmptyNameIsUntitled) {
    EXPECT_THAT(burned("audio", ""), ElementsAre("Untitled.bin", "Untitled.cue"));
}

TEST_F(DiscNames, NameIsNotHidden) {
    const std::vector<std::string> names = burned("data", "..hidden");
    ASSERT_THAT(names, SizeIs(1));
    EXPECT_NE(names[0].front(), '.');
}

TEST_F(DiscNames, QuotesLeaveACueSheetThatIsRead) {
    const std::vector<std::string> names = burned("audio", "The \"Best\" of 'us'");
    ASSERT_THAT(names, SizeIs(2));
    const CommandResult info =
        runCommand({"cd-info", "--no-cddb", "--no-device-info", "--cue-file=" + image(names[1])});
    EXPECT_EQ(info.exitCode, 0) << info.output;
    EXPECT_THAT(info.output, HasSubstr("1: 00:02:00  000000 audio"));
}

TEST_F(DiscNames, LongNameIsCutAtACharacter) {
    std::string name;
    for (int i = 0; i < 100; ++i) {
        name += "語"; // three bytes each
    }
    const std::vector<std::string> names = burned("data", name);
    ASSERT_THAT(names, SizeIs(1));
    EXPECT_LE(names[0].size(), 255U);
    EXPECT_GE(names[0].size(), 240U);
    EXPECT_EQ((names[0].size() - 4) % 3, 0U) << names[0];
}

TEST_F(DiscNames, NameThatIsTakenGetsANumber) {
    burn("data", "A", {medium("short.wav")});
    burn("data", "A", {medium("short.wav")});
    EXPECT_THAT(images(), ElementsAre("A 2.iso", "A.iso"));
}

TEST_F(DiscNames, TwoBurnsAtOnceIntoOneFolderBothSucceed) {
    ScorchProcess one(burnArguments("audio", "Same", {medium("song.flac")}));
    ScorchProcess two(burnArguments("audio", "Same", {medium("song.mp3")}));
    EXPECT_EQ(one.wait(), 0) << one.errors();
    EXPECT_EQ(two.wait(), 0) << two.errors();
    EXPECT_THAT(images(), ElementsAre("Same 2.bin", "Same 2.cue", "Same.bin", "Same.cue"));
    EXPECT_THAT(readFile(image("Same.cue")), HasSubstr("\"Same.bin\""));
    EXPECT_THAT(readFile(image("Same 2.cue")), HasSubstr("\"Same 2.bin\""));
}
