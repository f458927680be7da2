// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/RecordedDisc.h"
#include "tests/scorch/drive/FakeContent.h"

#include <gmock/gmock.h>

using namespace scorch;
using testing::HasSubstr;
using testing::Optional;

namespace {

const SessionPlan plan{TrackKind::audio, {300, 400}};

MediumState goodDisc() {
    MediumState disc;
    disc.kind = MediumState::Kind::cdR;
    disc.contents = MediumState::Contents::complete;
    disc.tracks = {{1, false, 0}, {2, false, 300}};
    disc.leadOut = 700;
    return disc;
}

template <class Change>
std::optional<std::string> differenceAfter(Change change) {
    MediumState disc = goodDisc();
    change(disc);
    return differenceFromPlan(disc, plan);
}

} // namespace

TEST(RecordedDisc, DiscAsPlannedHasNoDifference) {
    EXPECT_EQ(differenceFromPlan(goodDisc(), plan), std::nullopt);
}

TEST(RecordedDisc, DiscThatIsStillBlankIsFound) {
    EXPECT_THAT(differenceAfter([](MediumState &disc) {
                    disc = {};
                    disc.contents = MediumState::Contents::blank;
                }),
                Optional(HasSubstr("still blank")));
}

TEST(RecordedDisc, DiscThatIsNotClosedIsFound) {
    for (const auto contents :
         {MediumState::Contents::appendable, MediumState::Contents::unknown}) {
        EXPECT_THAT(differenceAfter([&](MediumState &disc) { disc.contents = contents; }),
                    Optional(HasSubstr("not closed")));
    }
}

TEST(RecordedDisc, MissingTrackIsFound) {
    EXPECT_THAT(differenceAfter([](MediumState &disc) { disc.tracks.pop_back(); }),
                Optional(HasSubstr("1 instead of 2")));
}

TEST(RecordedDisc, TrackOfAnotherKindNumberOrPlaceIsFound) {
    EXPECT_TRUE(differenceAfter([](MediumState &disc) { disc.tracks[0].isData = true; }));
    EXPECT_TRUE(differenceAfter([](MediumState &disc) { disc.tracks[1].number = 3; }));
    EXPECT_THAT(differenceAfter([](MediumState &disc) { disc.tracks[1].start = 450; }),
                Optional(HasSubstr("begins at 450 instead of 300")));
}

TEST(RecordedDisc, LeadOutAtAnotherPlaceIsFound) {
    EXPECT_THAT(differenceAfter([](MediumState &disc) { disc.leadOut = 699; }),
                Optional(HasSubstr("lead-out")));
}

TEST(SessionPlan, ShortTracksAreFilledUp) {
    const SessionPlan filled = planSession(FakeContent(TrackKind::data, {183}));
    EXPECT_EQ(filled.kind, TrackKind::data);
    EXPECT_THAT(filled.sectors, testing::ElementsAre(300));
    EXPECT_THAT(planSession(FakeContent(TrackKind::audio, {300, 301})).sectors,
                testing::ElementsAre(300, 301));
}

TEST(SessionPlan, TracksStandBehindEachOther) {
    EXPECT_EQ(plan.start(0), 0);
    EXPECT_EQ(plan.start(1), 300);
    EXPECT_EQ(plan.total(), 700);
}
