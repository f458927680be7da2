// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/GivenTime.h"
#include "tests/system/drives/DriveWindowTest.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;
using recorder::DiscKind;

namespace {

constexpr auto noDrive = "You should connect a disc drive!";
constexpr auto checking = "Checking disk...";
constexpr auto insert = "Please insert a blank disc...";
constexpr auto notBlank = "This is not a blank CD, please insert a blank one!";
constexpr auto cannotBurn = "This disc drive can not support burning!";

} // namespace

TEST_F(DriveWindowTest, ADriveThatIsPluggedInIsListedWithinTwoSecondsAndNotChosen) {
    start();
    EXPECT_EQ(tips(), QLatin1String(noDrive));
    const GivenTime taken;
    drive().describe("vendor ACME\nproduct DRW-24\n");
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    ASSERT_TRUE(waitUntil([this] { return driveNames() == QStringList(u"ACME DRW-24"_qs); }));
    EXPECT_LE(taken.elapsed(), 2s);
    EXPECT_TRUE(popup()->isVisible());
    EXPECT_EQ(tips(), QLatin1String(noDrive)) << "nobody has chosen it";
}

TEST_F(DriveWindowTest, ADriveThatIsChosenIsCheckedAndThenShowsTheNameField) {
    start();
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR), "other");
    drive().control("becoming-ready 3\ndisc other #1\n");
    ASSERT_TRUE(waitUntil([this] { return popup()->count() == 1; }));
    choose(0);
    EXPECT_EQ(tips(), QLatin1String(checking));
    EXPECT_TRUE(waitForNameField());
}

TEST_F(DriveWindowTest, TheFirstDriveIsChosenWhenTheWindowOpens) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdRw));
    start();
    EXPECT_TRUE(waitForNameField());
}

TEST_F(DriveWindowTest, EachDiscIsToldAsItIs) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    drive().makeDisc(usedDisc(DiscKind::CdR), "used");
    drive().makeDisc(usedDisc(DiscKind::CdRom), "pressed");
    drive().makeDisc(recorder::blankDisc(DiscKind::DvdR), "dvd");
    drive().makeDisc(recorder::blankDisc(DiscKind::CdRw), "blank");
    start();
    ASSERT_TRUE(waitForNameField());
    drive().control("tray open #1\n");
    EXPECT_TRUE(waitForTips(insert));
    drive().control("disc used #2\n");
    EXPECT_TRUE(waitForTips(notBlank));
    drive().control("disc dvd #3\n");
    EXPECT_TRUE(waitForTips(insert));
    drive().control("disc pressed #4\n");
    EXPECT_TRUE(waitForTips(notBlank));
    drive().control("disc blank #5\n");
    EXPECT_TRUE(waitForNameField());
    drive().control("disc none #6\n");
    EXPECT_TRUE(waitForTips(insert));
}

TEST_F(DriveWindowTest, ADriveThatOnlyReadsIsSaidToBeOfNoUse) {
    drive().describe("writes no\n");
    start();
    EXPECT_TRUE(waitForTips(cannotBurn));
}

TEST_F(DriveWindowTest, ADriveThatMayNotBeUsedIsListed) {
    drive().describe("vendor ACME\nproduct DRW-24\n");
    drive().control("no-permission\n");
    start();
    EXPECT_TRUE(waitForTips(cannotBurn));
    EXPECT_EQ(driveNames(), QStringList(u"ACME DRW-24"_qs));
}

TEST_F(DriveWindowTest, ADriveThatIsUnpluggedGoesAndTheNextOneIsChosen) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    drive("sr1").makeDisc(usedDisc(DiscKind::CdR));
    start();
    ASSERT_TRUE(waitForNameField());
    EXPECT_EQ(popup()->count(), 2);
    drive().control("vanished\n");
    EXPECT_TRUE(waitUntil([this] { return popup()->count() == 1; }));
    EXPECT_TRUE(waitForTips(notBlank));
    drive("sr1").control("vanished\n");
    EXPECT_TRUE(waitUntil([this] { return popup()->count() == 0; }));
    EXPECT_TRUE(waitUntil([this] { return host_.part<QLabel>("_txtNoneDevice")->isVisible(); }));
    drive().control("");
    EXPECT_TRUE(waitUntil([this] { return popup()->count() == 1; }));
    choose(0);
    EXPECT_TRUE(waitForNameField());
}

TEST_F(DriveWindowTest, TheTrayOpensWhenTheUserAsks) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    start();
    ASSERT_TRUE(waitForNameField());
    host_.part<QPushButton>("_btnEject")->click();
    EXPECT_TRUE(waitForTips(insert));
}

TEST_F(DriveWindowTest, ATrayThatDoesNotOpenIsExplainedAtTheButton) {
    drive().makeDisc(recorder::blankDisc(DiscKind::CdR));
    start();
    ASSERT_TRUE(waitForNameField());
    drive().control("jammed\n");
    host_.part<QPushButton>("_btnEject")->click();
    EXPECT_TRUE(waitUntil(
        [] { return QToolTip::text().contains(QLatin1String("could not open its tray")); }));
    EXPECT_TRUE(waitForNameField());
    QToolTip::hideText();
}

TEST_F(DriveWindowTest, ADriveThatDoesNotAnswerNeverHoldsTheWindowUp) {
    drive().control("silent 1500\n");
    drive("sr1").makeDisc(recorder::blankDisc(DiscKind::CdR));
    GivenTime sinceLast;
    std::chrono::milliseconds longest{};
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout,
                     [&] { longest = std::max(longest, sinceLast.restart()); });
    start();
    EXPECT_EQ(tips(), QLatin1String(checking));
    sinceLast.restart();
    beat.start(5ms);
    EXPECT_TRUE(waitForTips(insert));
    choose(1);
    EXPECT_TRUE(waitForNameField());
    choose(0);
    EXPECT_EQ(tips(), QLatin1String(checking));
    EXPECT_LT(longest, 750ms) << "half of what one command of that drive takes";
}
