// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageDriveOptions.h"
#include "scorch/drive/ImageDriveSource.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

using namespace scorch;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

struct Parsed {
    std::vector<ImageDriveOptions> drives;
    std::vector<std::string> complaints;
};

Parsed parse(std::string_view setting) {
    Parsed parsed;
    parsed.drives = parseImageDriveOptions(
        setting, [&parsed](const std::string &text) { parsed.complaints.push_back(text); });
    return parsed;
}

std::vector<std::string> namesOf(std::string_view setting) {
    return imageDriveNames(parse(setting).drives);
}

} // namespace

TEST(ImageDriveOptions, AFolderAloneIsADriveOfEightyMinutes) {
    const Parsed parsed = parse("/tmp/discs");
    EXPECT_THAT(parsed.drives, ElementsAre(ImageDriveOptions{"/tmp/discs", 80, false}));
    EXPECT_THAT(parsed.complaints, IsEmpty());
}

TEST(ImageDriveOptions, EightyMinutesAreTheSectorsOfTheCommonDisc) {
    EXPECT_EQ(blankDiscSectors(80), 359'849);
    EXPECT_EQ(blankDiscSectors(74), 74 * 60 * 75 - 151);
}

TEST(ImageDriveOptions, OptionsFollowBehindCommas) {
    const Parsed parsed = parse("/a,minutes=74,create:/b,create:/c,minutes=1");
    EXPECT_THAT(parsed.drives,
                ElementsAre(ImageDriveOptions{"/a", 74, true}, ImageDriveOptions{"/b", 80, true},
                            ImageDriveOptions{"/c", 1, false}));
    EXPECT_THAT(parsed.complaints, IsEmpty());
}

TEST(ImageDriveOptions, ABackslashKeepsColonsCommasAndBackslashes) {
    const Parsed parsed = parse(R"(/a\:b\,c\\d\e,create)");
    EXPECT_THAT(parsed.drives, ElementsAre(ImageDriveOptions{R"(/a:b,c\d\e)", 80, true}));
}

TEST(ImageDriveOptions, JunkIsLeftOutWithAComplaint) {
    for (const char *junk : {"/a,minutes=", "/a,minutes=0", "/a,minutes=100", "/a,minutes=-5",
                             "/a,minutes=8x", "/a,minutes=99999999999", "/a,hours=1"}) {
        const Parsed parsed = parse(junk);
        EXPECT_THAT(parsed.drives, ElementsAre(ImageDriveOptions{"/a", 80, false})) << junk;
        EXPECT_THAT(parsed.complaints, ElementsAre(HasSubstr("is ignored"))) << junk;
    }
}

TEST(ImageDriveOptions, DrivesWithoutAFolderAndFoldersNamedTwiceAreLeftOut) {
    EXPECT_THAT(parse("").drives, IsEmpty());
    EXPECT_THAT(parse(":::").drives, IsEmpty());
    const Parsed withoutFolder = parse(",minutes=74");
    EXPECT_THAT(withoutFolder.drives, IsEmpty());
    EXPECT_THAT(withoutFolder.complaints, SizeIs(1));
    const Parsed twice = parse("/a/b:/a//x/../b/");
    EXPECT_THAT(twice.drives, SizeIs(1));
    EXPECT_THAT(twice.complaints, SizeIs(1));
}

TEST(ImageDriveOptions, ARelativeFolderCountsFromTheCurrentOne) {
    EXPECT_EQ(parse("discs/").drives.at(0).folder, std::filesystem::current_path() / "discs");
}

TEST(ImageDriveOptions, DrivesAreNamedAfterTheLastComponent) {
    EXPECT_THAT(namesOf("/home/me/CD images:/"),
                ElementsAre("Disc image (CD images)", "Disc image (/)"));
}

TEST(ImageDriveOptions, TheWholePathTellsTwoAlikeApart) {
    EXPECT_THAT(namesOf("/a/discs:/b/discs:/c"),
                ElementsAre("Disc image (/a/discs)", "Disc image (/b/discs)", "Disc image (c)"));
}

TEST(ImageDriveOptions, ANameThatIsNoTextIsShownAllTheSame) {
    EXPECT_THAT(namesOf("/a/\xFF"), ElementsAre("Disc image (\uFFFD)"));
}

TEST(ImageDriveOptions, NoTwoNamesAreTheSame) {
    EXPECT_THAT(namesOf("/a/\xFF:/a/\xFE"),
                ElementsAre("Disc image (/a/\uFFFD)", "Disc image (/a/\uFFFD 2)"));
}

TEST(ImageDriveSource, FindsTheDrivesThatTheEnvironmentNames) {
    setenv("SCORCH_IMAGE_DRIVE", "/x/one,minutes=74:/x/two", 1);
    const auto drives = ImageDriveSource().search({});
    unsetenv("SCORCH_IMAGE_DRIVE");
    ASSERT_THAT(drives, SizeIs(2));
    EXPECT_EQ(drives[0]->name(), "Disc image (one)");
    EXPECT_EQ(drives[0]->state().disc.freeSectors, blankDiscSectors(74));
    EXPECT_EQ(drives[1]->name(), "Disc image (two)");
}

TEST(ImageDriveSource, FindsNoneWithoutTheSetting) {
    unsetenv("SCORCH_IMAGE_DRIVE");
    EXPECT_THAT(ImageDriveSource().search({}), IsEmpty());
}
