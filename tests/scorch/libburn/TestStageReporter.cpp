// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/StageReporter.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using namespace scorch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Words final : public RecordObserver {
public:
    std::vector<std::string> words;

    void openingTrack(std::size_t track, std::size_t count) override { add("open", track, count); }
    void writingTrack(std::size_t track, std::size_t count) override { add("write", track, count); }
    void closedTrack(std::size_t track, std::size_t count) override { add("close", track, count); }
    void closedSession() override { words.emplace_back("session"); }
    void finishing() override { words.emplace_back("finishing"); }
    void wroteSectors(std::int64_t sectors) override { words.push_back(std::to_string(sectors)); }

    std::vector<std::string> take() { return std::exchange(words, {}); }

private:
    void add(const std::string &word, std::size_t track, std::size_t count) {
        words.push_back(word + ' ' + std::to_string(track) + '/' + std::to_string(count));
    }
};

const SessionPlan plan{TrackKind::audio, {300, 400}};

} // namespace

TEST(RecordingStages, TrackIsOpenUntilItsFirstSectorIsTaken) {
    Words words;
    StageReporter stages(plan, words);
    stages.begin();
    stages.reached(0);
    EXPECT_THAT(words.take(), ElementsAre("open 1/2"));
    stages.reached(1);
    EXPECT_THAT(words.take(), ElementsAre("write 1/2", "1"));
}

TEST(RecordingStages, ComeInOrderAlsoWhenOneLookSeesAll) {
    Words words;
    StageReporter stages(plan, words);
    stages.begin();
    stages.reached(700);
    EXPECT_THAT(words.take(), ElementsAre("open 1/2", "write 1/2", "300", "close 1/2", "open 2/2",
                                          "write 2/2", "700", "close 2/2", "session", "finishing"));
    stages.reached(700);
    EXPECT_THAT(words.take(), IsEmpty());
}

TEST(RecordingStages, EndOfATrackOpensTheNext) {
    Words words;
    StageReporter stages(plan, words);
    stages.begin();
    stages.reached(299);
    words.take();
    stages.reached(300);
    EXPECT_THAT(words.take(), ElementsAre("300", "close 1/2", "open 2/2"));
    stages.reached(301);
    EXPECT_THAT(words.take(), ElementsAre("write 2/2", "301"));
}

TEST(RecordingStages, FinishingBeginsWithTheLastSector) {
    Words words;
    StageReporter stages(plan, words);
    stages.begin();
    stages.reached(699);
    words.take();
    stages.reached(699);
    EXPECT_THAT(words.take(), IsEmpty());
    stages.reached(700);
    EXPECT_THAT(words.take(), ElementsAre("700", "close 2/2", "session", "finishing"));
}
