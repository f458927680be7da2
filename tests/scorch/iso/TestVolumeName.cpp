// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/VolumeName.h"
#include "tests/scorch/iso/IsoTestSupport.h"
#include "tests/support/CommandResult.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

using namespace isotest;
using scorch::VolumeIdentifier;
using testing::HasSubstr;

namespace {

std::string primary(std::string_view name) {
    const VolumeIdentifier identifier = scorch::primaryVolumeIdentifier(name);
    const std::string text(reinterpret_cast<const char *>(identifier.data()), identifier.size());
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// The code units, without the spaces behind them.
std::u16string joliet(std::string_view name) {
    const VolumeIdentifier identifier = scorch::jolietVolumeIdentifier(name);
    std::u16string units;
    for (std::size_t at = 0; at < identifier.size(); at += 2) {
        units += static_cast<char16_t>(std::to_integer<int>(identifier[at]) << 8 |
                                       std::to_integer<int>(identifier[at + 1]));
    }
    return units.substr(0, units.find_last_not_of(u' ') + 1);
}

TEST(VolumeName, IsKeptWholeWhereItFits) {
    EXPECT_EQ(primary("Summer holidays 2024, part 2 / 3"), "Summer holidays 2024, part 2 / 3");
    EXPECT_EQ(joliet("Summer 2024, Öl!"), u"Summer 2024, Öl!");
    EXPECT_EQ(primary(""), "");
    EXPECT_EQ(joliet(""), u"");
}

TEST(VolumeName, IsCutBehindACharacter) {
    EXPECT_EQ(primary(std::string(40, 'n')), std::string(32, 'n'));
    EXPECT_EQ(primary(std::string(31, 'n') + "é"), std::string(31, 'n'));
    EXPECT_EQ(primary("日本語日本語日本語日本"), "日本語日本語日本語日");
    EXPECT_EQ(joliet(std::string(20, 'n')), std::u16string(16, u'n'));
}

TEST(VolumeName, JolietHoldsCharactersThatThePrimaryNameHasNoRoomFor) {
    EXPECT_EQ(joliet("日本語日本語日本語日本語日本語日本語"), u"日本語日本語日本語日本語日本語日");
}

TEST(VolumeName, APairOfUnitsIsNeverParted) {
    EXPECT_EQ(joliet(std::string(14, 'n') + "😀"), std::u16string(14, u'n') + u"😀");
    EXPECT_EQ(joliet(std::string(15, 'n') + "😀"), std::u16string(15, u'n'));
    EXPECT_EQ(primary(std::string(29, 'n') + "😀"), std::string(29, 'n'));
}

TEST(VolumeName, BytesThatAreNoTextHarmNothing) {
    EXPECT_EQ(joliet("a\xFFz"), u"a\uFFFDz");
    EXPECT_EQ(primary("a\xFFz"), "a\xFFz");
    EXPECT_EQ(joliet("cut \xE6\x97"), u"cut \uFFFD\uFFFD");
}

TEST(VolumeName, NothingIsStampedIntoWhatIsNoImage) {
    std::array<std::byte, std::size_t{20} * 2048> zeros{};
    EXPECT_FALSE(scorch::stampVolumeName(zeros, "name"));
    EXPECT_FALSE(scorch::stampVolumeName({}, "name"));
}

class VolumeNameOnDisc : public testing::TestWithParam<const char *> {};

TEST_P(VolumeNameOnDisc, IsReadByOtherPrograms) {
    const TemporaryFolder folder;
    writeImage(entriesOf({folder.write("file", "1")}), folder / "disc.iso", GetParam());
    const std::string listing =
        runCommand({"isoinfo", "-d", "-i", (folder / "disc.iso").string()}).output;
    EXPECT_THAT(listing, HasSubstr("Volume id: " + primary(GetParam()) + "\n"));
    EXPECT_THAT(listing, HasSubstr("Application id: CD BURNER"));
    const std::string xorriso = runCommand({"xorriso", "-local_charset", "UTF-8", "-indev",
                                            (folder / "disc.iso").string(), "-pvd_info"})
                                    .output;
    EXPECT_THAT(xorriso, HasSubstr("Volume Id    : " + primary(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(Names, VolumeNameOnDisc,
                         testing::Values("MUSIC", "Summer 2024", "Übergröße", "日本語の名前",
                                         "exactly thirty-two bytes long !!",
                                         "ein ziemlich langer Name für eine Scheibe"));

TEST(VolumeName, IsTheLabelThatADesktopShows) {
    for (const std::string name : {"Summer 2024", "Übergröße", "日本語の名前", "Fotos 😀"}) {
        const TemporaryFolder folder;
        writeImage({}, folder / "disc.iso", name);
        const std::string label = runCommand({"/sbin/blkid", "-p", "-s", "LABEL", "-o", "value",
                                              (folder / "disc.iso").string()})
                                      .output;
        EXPECT_EQ(label, name + "\n");
    }
}

} // namespace
