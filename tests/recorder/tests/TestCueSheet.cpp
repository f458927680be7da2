// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/CueSheet.h"
#include "tests/recorder/SubChannel.h"
#include "tests/recorder/tests/RecorderFixture.h"

#include <functional>

using namespace recorder;

namespace {

Bytes sheetOf(const std::vector<Bytes> &entries) {
    Bytes sheet;
    for (const Bytes &entry : entries) {
        appendTo(sheet, entry);
    }
    return sheet;
}

std::vector<Bytes> goodEntries() {
    return {cueEntry(0x01, 0, 0, 0x01, -150), cueEntry(0x01, 1, 0, 0x00, -150),
            cueEntry(0x01, 1, 1, 0x00, 0),    cueEntry(0x01, 2, 0, 0x00, 400),
            cueEntry(0x01, 2, 1, 0x00, 550),  cueEntry(0x01, 0xaa, 1, 0x01, 1000)};
}

std::optional<CueSheet> parse(const std::vector<Bytes> &entries) {
    return CueSheet::parse(sheetOf(entries), blankDisc(DiscKind::CdR));
}

} // namespace

TEST(CueSheet, BecomesTracksWithPregaps) {
    const auto sheet = parse(goodEntries());
    ASSERT_TRUE(sheet);
    const std::vector<Track> &tracks = sheet->session().tracks;
    ASSERT_EQ(tracks.size(), 2U);
    EXPECT_EQ(tracks[0].start, 0);
    EXPECT_EQ(tracks[0].end, 400);
    EXPECT_EQ(tracks[1].pregap, 150);
    EXPECT_EQ(tracks[1].start, 550);
    EXPECT_EQ(sheet->leadOut(), 1000);
}

TEST(CueSheet, SaysHowManyBytesABlockHas) {
    for (const auto &[form, bytes] : std::initializer_list<std::pair<int, std::size_t>>{
             {0x00, 2352}, {0x01, 0}, {0x40, 2448}, {0x10, 2048}, {0x11, 2352}, {0x20, 2336}}) {
        const int control = form >= 0x10 && form != 0x40 ? 0x41 : 0x01;
        const auto sheet =
            parse({cueEntry(control, 0, 0, 0x01, -150), cueEntry(control, 1, 0, form, -150),
                   cueEntry(control, 1, 1, form, 0), cueEntry(control, 0xaa, 1, 0x01, 300)});
        ASSERT_TRUE(sheet) << form;
        EXPECT_EQ(sheet->rangeAt(0)->blockBytes(), bytes) << form;
    }
}

TEST(CueSheet, WrongSheetsAreRefused) {
    using Change = std::function<void(std::vector<Bytes> &)>;
    const std::vector<std::pair<const char *, Change>> changes = {
        {"no lead-in",
         [](auto &list) {
             list.erase(list.begin());
         }},
        {"no lead-out",
         [](auto &list) {
             list.pop_back();
         }},
        {"no start",
         [](auto &list) {
             list.erase(list.begin() + 1);
         }},
        {"track left out",
         [](auto &list) {
             list[3][1] = list[4][1] = 3;
         }},
        {"going back",
         [](auto &list) {
             list[4] = cueEntry(0x01, 2, 1, 0, 300);
         }},
        {"index left out",
         [](auto &list) {
             list[4][2] = 2;
         }},
        {"track too short",
         [](auto &list) {
             list[5] = cueEntry(0x01, 0xaa, 1, 1, 800);
         }},
        {"beyond the disc",
         [](auto &list) {
             list[5] = cueEntry(0x01, 0xaa, 1, 1, 359850);
         }},
        {"not from the beginning",
         [](auto &list) {
             list[1] = cueEntry(0x01, 1, 0, 0, -100);
         }},
        {"data marked as sound",
         [](auto &list) {
             list[2][3] = 0x10;
         }},
        {"unknown form",
         [](auto &list) {
             list[2][3] = 0x0f;
         }},
        {"no such frame",
         [](auto &list) {
             list[4][7] = 75;
         }},
        {"short catalog", [](auto &list) {
             list.insert(list.begin(), Bytes{2, '1', '2', '3', '4', '5', '6', '7'});
         }}};
    for (const auto &[name, change] : changes) {
        std::vector<Bytes> entries = goodEntries();
        change(entries);
        EXPECT_FALSE(parse(entries)) << name;
    }
}

TEST(CueSheet, OfADiscThatGoesOnMustBeginWhereItGoesOn) {
    Disc disc = blankDisc(DiscKind::CdR);
    Track track;
    track.end = track.recorded = 300;
    disc.sessions = {{{track}, true, 300}};
    EXPECT_FALSE(CueSheet::parse(audioSheet({300}), disc));
    const Lba start = 300 + 11400;
    EXPECT_TRUE(CueSheet::parse(
        sheetOf({cueEntry(0x01, 0, 0, 0x01, -150), cueEntry(0x01, 2, 0, 0, start - 150),
                 cueEntry(0x01, 2, 1, 0, start), cueEntry(0x01, 0xaa, 1, 0x01, start + 300)}),
        disc));
}

TEST(CueSheet, IsRefusedWithCdTextIfTheDriveDislikesIt) {
    RecorderFixture fixture;
    fixture.scene.control("refuse-cd-text\n");
    Host host = fixture.host();
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    EXPECT_EQ(outcome(host.sendCueSheet(audioSheet({300}, 0x41))), "5/26/00");
    EXPECT_GOOD(host.sendCueSheet(audioSheet({300})));
}

TEST(CueSheet, TextInTheLeadInIsKeptUntilItRepeats) {
    RecorderFixture fixture;
    Host host = fixture.host();
    TextPack pack = {0x80, 1, 0, 0, 'A', 0};
    put16(pack, 16, subChannelCrc(ByteView(pack).first(16)));
    Bytes block(kSubChannelBytes, 0);
    for (std::size_t bit = 0; bit < std::size_t{4} * 18 * 8; ++bit) { // The same pack four times.
        const unsigned value = pack[bit % 144 / 8] >> (7 - bit % 8) & 1U;
        block[bit / 6] = static_cast<Byte>(block[bit / 6] | value << (5 - bit % 6));
    }
    host.setWriteMode(WriteMode::SessionAtOnce, 0, 0);
    host.sendCueSheet(audioSheet({300}, 0x41));
    EXPECT_GOOD(host.write(-160, 1, block));
    EXPECT_EQ(fixture.scene.disc().textPacks, std::vector<TextPack>{pack});
    EXPECT_EQ(host.readToc(5).data.size(), 4U + 18);
}
