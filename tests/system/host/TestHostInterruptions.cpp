// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/host/AlertAnswer.h"
#include "tests/system/host/HostTest.h"

#include <QApplication>
#include <QTimer>

#include <gmock/gmock.h>

#include <csignal>

namespace {

using testing::Contains;
using testing::IsEmpty;

class HostInterruptions : public HostTest {};

TEST_F(HostInterruptions, CancelLeavesNothingBehindAndKeepsTheList) {
    startLongBurn();
    AlertAnswer answer(QStringLiteral("Yes"));
    sheetButton()->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_FALSE(sheetButton() != nullptr && sheetButton()->isEnabled());
    waitUntil("cancelled", [this] { return sheet() == nullptr; });
    EXPECT_THAT(images(), IsEmpty());
    EXPECT_EQ(rows(), 1);
    EXPECT_THAT(usageEvents(), Contains("CDBurn_BurnCancel"));
}

TEST_F(HostInterruptions, RefusedQuitLeavesTheBurnAlone) {
    startLongBurn();
    AlertAnswer answer(QStringLiteral("No"));
    EXPECT_FALSE(crate().window().close());
    EXPECT_EQ(answer.count(), 1);
    EXPECT_TRUE(crate().window().isVisible());
    ASSERT_NE(sheet(), nullptr);
    EXPECT_TRUE(sheetButton()->isEnabled());
}

TEST_F(HostInterruptions, AgreedQuitCancelsAndLeavesNothingBehind) {
    startLongBurn();
    AlertAnswer answer(QStringLiteral("Yes"));
    QMetaObject::invokeMethod(
        &crate().window(), [this] { crate().window().close(); }, Qt::QueuedConnection);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(answer.count(), 1);
    EXPECT_FALSE(tool().isStartuped());
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(HostInterruptions, SignalCancelsWithoutAskingAndLeavesNothingBehind) {
    startLongBurn();
    const AlertAnswer answer(QStringLiteral("Yes"));
    QMetaObject::invokeMethod(
        qApp, [] { std::raise(SIGTERM); }, Qt::QueuedConnection);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(answer.count(), 0);
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(HostInterruptions, SignalWhileAnAlertAsksEndsTheProgramToo) {
    startLongBurn();
    QMetaObject::invokeMethod(sheetButton(), &QPushButton::click, Qt::QueuedConnection);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&look] {
        if (QApplication::activeModalWidget() != nullptr &&
            QApplication::activeModalWidget()->inherits("QMessageBox")) {
            look.stop();
            std::raise(SIGTERM);
        }
    });
    look.start(5);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(HostInterruptions, WindowOpenedAnewFollowsTheBurnAndCanCancelIt) {
    startLongAudioBurn();
    tool().shutdown();
    EXPECT_FALSE(tool().isStartuped());
    crate().window().openTool(0);
    waitUntil("sheet on the new window", [this] { return sheet() != nullptr; });
    AlertAnswer answer(QStringLiteral("Yes"));
    sheetButton()->click();
    waitUntil("cancelled", [this] { return sheet() == nullptr; });
    EXPECT_THAT(images(), IsEmpty());
}

TEST_F(HostInterruptions, WindowOpenedAnewCanCancelADataBurnToo) {
    startLongBurn();
    tool().shutdown();
    crate().window().openTool(0);
    waitUntil("sheet on the new window", [this] { return sheet() != nullptr; });
    AlertAnswer answer(QStringLiteral("Yes"));
    sheetButton()->click();
    waitUntil("cancelled", [this] { return sheet() == nullptr; });
    EXPECT_THAT(images(), IsEmpty());
    EXPECT_EQ(rows(), 1) << "the list that was burning is shown and kept";
}

TEST_F(HostInterruptions, ClosedWindowComesBackWithItsList) {
    start({medium("short.wav")});
    waitUntil("song listed", [this] { return rows() == 1 && sheet() == nullptr; });
    EXPECT_TRUE(toolWindow()->close());
    EXPECT_FALSE(tool().isStartuped());
    crate().window().openTool(0);
    waitUntil("list shown again", [this] { return rows() == 1; });
}

} // namespace
