// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

class Capacity : public ControllerTest {
protected:
    /// An audio list of so many CD frames on a drive with so many free.
    void openWith(std::uint64_t used, std::int64_t total, bool overflows) {
        FakeDrive &drive = engine.addDrive("Drive");
        drive.freeTime = total;
        drive.freeSize = total;
        engine.audio().used = used;
        engine.audio().overflows = overflows;
        engine.audio().append("Song", 75);
        open();
    }

    QColor colour() const { return retainedLabel()->palette().color(QPalette::WindowText); }
    std::string used() const { return usedLabel()->text().toStdString(); }
    std::string retained() const { return retainedLabel()->text().toStdString(); }
};

namespace {

const QColor darkGreen = QColor::fromRgbF(0.0F, 0.5F, 0.0F);
const QColor red = QColor::fromRgbF(1.0F, 0.0F, 0.0F);
const QColor grey = QColor::fromRgbF(0.5F, 0.5F, 0.5F);
constexpr std::int64_t minute = INT64_C(60) * 75;

} // namespace

TEST_F(Capacity, BarHasTheDiscAsItsMaximumAndTheListAsItsValue) {
    openWith(20 * minute, 80 * minute, false);
    EXPECT_DOUBLE_EQ(bar()->maxValue(), 80.0 * minute);
    EXPECT_DOUBLE_EQ(bar()->doubleValue(), 20.0 * minute);
}

TEST_F(Capacity, BarTakesAListBeyondTheDiscAsItIs) {
    openWith(90 * minute, 80 * minute, true);
    EXPECT_DOUBLE_EQ(bar()->doubleValue(), 90.0 * minute);
}

TEST_F(Capacity, NoCapacityIsAnEmptyBarWhateverTheListHolds) {
    openWith(20 * minute, 0, false);
    EXPECT_DOUBLE_EQ(bar()->maxValue(), 1.0);
    EXPECT_DOUBLE_EQ(bar()->doubleValue(), 0.0);
}

TEST_F(Capacity, RemainingTimeIsDarkGreen) {
    openWith(20 * minute, 80 * minute, false);
    EXPECT_EQ(used(), "Used Time: 20:00");
    EXPECT_EQ(retained(), "Remaining Time: 60:00");
    EXPECT_EQ(colour(), darkGreen);
}

TEST_F(Capacity, BeyondTimeIsRed) {
    openWith(90 * minute, 80 * minute, true);
    EXPECT_EQ(used(), "Used Time: 90:00");
    EXPECT_EQ(retained(), "Beyond Time: 10:00");
    EXPECT_EQ(colour(), red);
}

TEST_F(Capacity, ColourOfTheUsedLabelIsLeftAlone) {
    openWith(90 * minute, 80 * minute, true);
    EXPECT_EQ(usedLabel()->palette().color(QPalette::WindowText),
              controller->window()->palette().color(QPalette::WindowText));
}

TEST_F(Capacity, OverflowWithoutUsableDiscStaysGrey) {
    openWith(90 * minute, 80 * minute, true);
    engine.drives.front().isBlank = false;
    controller->updateCapacity();
    EXPECT_EQ(retained(), "Remaining Time: 0:00");
    EXPECT_EQ(colour(), grey);
    EXPECT_EQ(used(), "Used Time: 90:00");
}

TEST_F(Capacity, WithoutUsableDiscNothingRemains) {
    openWith(20 * minute, 80 * minute, false);
    engine.drives.front().hasDisc = false;
    controller->updateCapacity();
    EXPECT_EQ(retained(), "Remaining Time: 0:00");
    EXPECT_EQ(colour(), grey);
}

TEST_F(Capacity, WithoutDriveTheUsedAmountStillShows) {
    openWith(20 * minute, 80 * minute, false);
    engine.removeDrive("Drive");
    controller->deviceDidDisappeared("Drive");
    EXPECT_DOUBLE_EQ(bar()->maxValue(), 1.0);
    EXPECT_DOUBLE_EQ(bar()->doubleValue(), 0.0);
    EXPECT_EQ(used(), "Used Time: 20:00");
    EXPECT_EQ(retained(), "Remaining Time: 0:00");
    EXPECT_EQ(colour(), grey);
}

TEST_F(Capacity, DataIsCountedInBytes) {
    openWith(0, 700'000'000, false);
    engine.data().used = 12'300'000;
    chooseData();
    EXPECT_EQ(used(), "Used Size: 12.3 MB");
    EXPECT_EQ(retained(), "Remaining Space: 687.7 MB");
    engine.data().used = 737'000'000;
    engine.data().overflows = true;
    controller->updateCapacity();
    EXPECT_EQ(retained(), "Beyond Size: 37.0 MB");
    engine.drives.front().hasDisc = false;
    controller->updateCapacity();
    EXPECT_EQ(retained(), "Remaining Space: 0 bytes");
    chooseAudio();
    EXPECT_EQ(used(), "Used Time: 0:00");
}

TEST_F(Capacity, TotalIsTimeForAudioAndSizeForData) {
    openWith(0, 0, false);
    engine.drives.front().freeTime = 11;
    engine.drives.front().freeSize = 22;
    EXPECT_EQ(controller->getTotalCapacity(), 11);
    chooseData();
    EXPECT_EQ(controller->getTotalCapacity(), 22);
}

TEST_F(Capacity, TheEngineAloneDecidesWhetherTheListFits) {
    // Less used than there is, and yet beyond it: formatted as it comes out.
    openWith(20 * minute, 80 * minute, true);
    EXPECT_EQ(retained(), "Beyond Time: -60:00");
    engine.audio().used = static_cast<std::uint64_t>(90 * minute);
    engine.audio().overflows = false;
    controller->updateCapacity();
    EXPECT_EQ(retained(), "Remaining Time: -10:00");
    EXPECT_EQ(colour(), darkGreen);
}

TEST_F(Capacity, ListThatFitsRaisesNoAlert) {
    openWith(20 * minute, 80 * minute, false);
    engine.drives.front().hasDisc = false;
    const AlertAnswer answer(QStringLiteral("OK"));
    EXPECT_FALSE(controller->alertIfZeroStorage());
    EXPECT_EQ(answer.count(), 0);
}

TEST_F(Capacity, ListThatDoesNotFitIsToldByAnInformationAlert) {
    openWith(90 * minute, 80 * minute, true);
    const AlertAnswer answer(QStringLiteral("OK"));
    EXPECT_TRUE(controller->alertIfZeroStorage());
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(answer.message(), QStringLiteral("Insufficient storage space.\t"));
    EXPECT_EQ(answer.informative(), QString());
    EXPECT_EQ(answer.icon(), QMessageBox::Information);
    EXPECT_EQ(answer.buttons(), QStringList{QStringLiteral("OK")});
    EXPECT_EQ(answer.modality(), Qt::ApplicationModal);
}

TEST_F(Capacity, OverflowAlertCountsAlsoWhenEscapeDismissesIt) {
    openWith(90 * minute, 80 * minute, true);
    const AlertAnswer answer([](QMessageBox *alert) { alert->close(); });
    EXPECT_TRUE(controller->alertIfZeroStorage());
    EXPECT_EQ(answer.count(), 1);
}
