// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/UsageCollector.h"

#include "tests/crate/support/LogLines.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace {

using crate::UsageCollector;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

class UsageCollectorTest : public testing::Test {
protected:
    std::string logged() const { return readFile(folder_ / "log"); }

    TemporaryFolder folder_;
    LogLines lines_;
    UsageCollector collector_;
};

TEST_F(UsageCollectorTest, EachEventIsALineInTheFileAtOnce) {
    ASSERT_THAT(collector_.openLog(folder_ / "log"), IsEmpty());
    EXPECT_THAT(logged(), IsEmpty());
    collector_.collectDataWithTargetAndKey(QStringLiteral("CDBurn"), QStringLiteral("Open"));
    EXPECT_THAT(logged(), MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}."
                                       "[0-9]{3}Z CDBurn Open\n"));
    collector_.collectDataWithTargetAndKey(QStringLiteral("CDBurn"), QStringLiteral("BurnOK"));
    EXPECT_THAT(logged(), EndsWith("Z CDBurn BurnOK\n"));
}

TEST_F(UsageCollectorTest, FileIsAppendedTo) {
    folder_.write("log", "earlier\n");
    ASSERT_THAT(collector_.openLog(folder_ / "log"), IsEmpty());
    collector_.collectDataWithTargetAndKey(QStringLiteral("A"), QStringLiteral("B"));
    EXPECT_THAT(logged(), MatchesRegex("earlier\n.* A B\n"));
}

TEST_F(UsageCollectorTest, EventCannotForgeALineOrAField) {
    ASSERT_THAT(collector_.openLog(folder_ / "log"), IsEmpty());
    collector_.collectDataWithTargetAndKey(QStringLiteral("A\nB C"), QString());
    EXPECT_THAT(logged(), EndsWith(" A_B_C -\n"));
}

TEST_F(UsageCollectorTest, EventsGoToTheLogCategoryToo) {
    collector_.collectDataWithTargetAndKey(QStringLiteral("CDBurn"), QStringLiteral("Open"));
    EXPECT_THAT(LogLines::lines(), ElementsAre(QStringLiteral("crate.usage: CDBurn Open")));
}

TEST_F(UsageCollectorTest, FileThatCannotBeOpenedIsNamedWithTheReason) {
    const std::string error = collector_.openLog(folder_ / "none" / "log");
    EXPECT_THAT(error, HasSubstr("none/log"));
    EXPECT_THAT(error, HasSubstr("No such file"));
}

TEST_F(UsageCollectorTest, FullDiscIsSaidOnce) {
    ASSERT_THAT(collector_.openLog("/dev/full"), IsEmpty());
    collector_.collectDataWithTargetAndKey(QStringLiteral("A"), QStringLiteral("B"));
    collector_.collectDataWithTargetAndKey(QStringLiteral("A"), QStringLiteral("C"));
    const QStringList warnings = LogLines::lines().filter(QStringLiteral("cannot be written"));
    EXPECT_EQ(warnings.size(), 1);
}

} // namespace
