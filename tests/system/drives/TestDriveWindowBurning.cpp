// SPDX-License-Identifier: GPL-2.0-or-later
// Burns on drives, by the window's buttons.
#include "tests/support/TemporaryFolder.h"
#include "tests/system/drives/DriveWindowTest.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

class DriveWindowBurning : public DriveWindowTest {
protected:
    DriveWindowBurning() {
        drive().makeDisc(recorder::blankDisc(recorder::DiscKind::CdR));
        drive().startLog();
    }

    /// The window with a file in its list, ready to burn it as data.
    void prepare(std::uintmax_t bytes) {
        const std::filesystem::path file = folder_.write("file.bin", "");
        std::filesystem::resize_file(file, bytes); // Takes no space.
        start();
        ASSERT_TRUE(waitForNameField());
        host_.chooseDisc(1);
        ASSERT_TRUE(host_.addFiles({file}));
        ASSERT_TRUE(waitUntil([this] { return host_.rows() == 1 && host_.sheet() == nullptr; }));
    }

    void clickBurn() {
        auto *button = host_.part<QPushButton>("_btnBurn");
        ASSERT_TRUE(waitUntil([button] { return button->isEnabled(); }));
        button->click();
        ASSERT_TRUE(waitUntil([this] { return host_.sheet() != nullptr; }));
    }

    /// Nobody holds the drive, and its door is not locked.
    void expectDriveToBeFree() {
        const int device = open("/dev/sr0", O_RDWR | O_NONBLOCK | O_EXCL); // NOLINT(*-vararg)
        EXPECT_GE(device, 0);
        close(device);
        const std::string log = drive().log();
        EXPECT_GT(log.rfind(" 1e 00 00 00 00 00") + 1, log.rfind(" 1e 00 00 00 01 00") + 1);
    }

    const TemporaryFolder folder_;
};

} // namespace

TEST_F(DriveWindowBurning, DiscIsBurnedVerifiedAndThenNotBlank) {
    prepare(1'000'000);
    clickBurn();
    ASSERT_TRUE(waitUntil([this] { return host_.sheetButton()->text() == QStringLiteral("OK"); }));
    host_.sheetButton()->click();
    EXPECT_TRUE(drive().disc().isFinal);
    EXPECT_TRUE(waitForTips("This is not a blank CD, please insert a blank one!"));
    EXPECT_EQ(host_.rows(), 0);
    expectDriveToBeFree();
}

TEST_F(DriveWindowBurning, SignalEndsTheProgramAndLeavesTheDriveFree) {
    prepare(100U << 20U);
    drive().control("slow 3000\n");
    clickBurn();
    ASSERT_TRUE(waitUntil([this] { return drive().disc().hasOpenSession(); }));
    QMetaObject::invokeMethod(
        qApp, [] { std::raise(SIGTERM); }, Qt::QueuedConnection);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(drive().disc().hasOpenSession());
    expectDriveToBeFree();
}
