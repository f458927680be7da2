// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXCDBurner.h"
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

/// The tool with its window, for closing it in all ways.
class Closing : public testing::Test {
protected:
    void SetUp() override {
        engine.addDrive("Drive");
        engine.audio().append("Song", 75);
        openTool();
    }
    void TearDown() override {
        tool.shutdown();
        // Each opening starts a search for drives, which asks the engine.
        const int openings = usage.count("CDBurn_Open");
        EXPECT_TRUE(runUntil([&] { return engine.finishedSearchCount() == openings; }));
        drainMainQueue();
    }
    void openTool() {
        const std::size_t handles = engine.handles.size();
        tool.startup();
        tool.mainWindow()->show();
        ASSERT_TRUE(runUntil([&] { return engine.handles.size() > handles; }));
        drainMainQueue();
    }
    ProgressWindow *sheet() { return tool.mainWindow()->findChild<ProgressWindow *>(); }
    ScorchDelegate &delegate() { return *engine.audio().delegate(); }
    void startBurn() {
        delegate().burnProgressDidStarted();
        drainMainQueue();
    }
    void startCheck() {
        delegate().addFilesProgressDidStarted();
        drainMainQueue();
    }

    FakeEngine engine;
    UsageLog usage;
    VXCDBurner tool{UsageLog::context()};
};

TEST_F(Closing, IdleWindowClosesWithoutAQuestion) {
    const AlertAnswer answer(QStringLiteral("No"));
    EXPECT_TRUE(tool.mainWindow()->close());
    EXPECT_FALSE(tool.isStartuped());
    EXPECT_EQ(answer.count(), 0);
}

TEST_F(Closing, DuringABurnNoKeepsTheWindow) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("No"));
    EXPECT_FALSE(tool.mainWindow()->close());
    EXPECT_EQ(answer.count(), 1);
    EXPECT_TRUE(tool.isStartuped());
    EXPECT_TRUE(tool.mainWindow()->isVisible());
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
}

TEST_F(Closing, DuringABurnYesStopsItAndCloses) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("Yes"));
    EXPECT_TRUE(tool.mainWindow()->close());
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
    EXPECT_FALSE(tool.isStartuped());
}

TEST_F(Closing, DuringACheckCancelsItWithoutAQuestion) {
    startCheck();
    const AlertAnswer answer(QStringLiteral("No"));
    EXPECT_TRUE(tool.mainWindow()->close());
    EXPECT_EQ(answer.count(), 0);
    EXPECT_EQ(engine.audio().count("cancelToAddFiles"), 1);
    EXPECT_FALSE(tool.isStartuped());
}

TEST_F(Closing, WhileTheEngineStopsIsNotAskedAgain) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("Yes"));
    sheet()->defaultButton()->click();
    EXPECT_TRUE(tool.mainWindow()->close());
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
}

TEST_F(Closing, FinishedBurnIsNotAsked) {
    startBurn();
    delegate().burnProgressDidDone();
    drainMainQueue();
    const AlertAnswer answer(QStringLiteral("No"));
    EXPECT_TRUE(tool.mainWindow()->close());
    EXPECT_EQ(answer.count(), 0);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
}

TEST_F(Closing, WhileTheQuestionStandsIsRefused) {
    startBurn();
    bool isClosed = true;
    const AlertAnswer answer([&](QMessageBox *alert) {
        isClosed = tool.mainWindow()->close();
        AlertAnswer::press(alert, QStringLiteral("No"));
    });
    sheet()->defaultButton()->click();
    EXPECT_FALSE(isClosed);
    EXPECT_EQ(answer.count(), 1);
}

TEST_F(Closing, QuittingAsksAndNoKeepsTheProgram) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("No"));
    QApplication::closeAllWindows();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_TRUE(tool.isStartuped());
    EXPECT_TRUE(sheet()->isVisible());
}

TEST_F(Closing, ShutdownWhileTheQuestionStandsTakesItAwayAndStopsNothing) {
    startBurn();
    const AlertAnswer answer([this](QMessageBox * /*alert*/) { tool.shutdown(); });
    sheet()->defaultButton()->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_FALSE(tool.isStartuped());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0) << "the burn goes on in the engine";
}

TEST_F(Closing, ShutdownWhileTheWindowAsksToCloseIsSafe) {
    startBurn();
    const AlertAnswer answer([this](QMessageBox * /*alert*/) { tool.shutdown(); });
    tool.mainWindow()->close();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
    EXPECT_FALSE(tool.isStartuped());
}

TEST_F(Closing, ShutdownDuringTheOverflowAlertBurnsNothing) {
    engine.audio().overflows = true;
    const AlertAnswer answer([this](QMessageBox * /*alert*/) { tool.shutdown(); });
    tool.mainWindow()->findChild<QPushButton *>(QStringLiteral("_btnBurn"))->click();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_TRUE(engine.audio().burns.empty());
}

TEST_F(Closing, ShutdownDuringTheErrorAlertIsSafe) {
    const AlertAnswer answer([this](QMessageBox * /*alert*/) { tool.shutdown(); });
    delegate().burnProgressDidError(ScorchError(ScorchErrorCode::driveGone, "Gone."));
    EXPECT_TRUE(runUntil([&answer] { return answer.count() == 1; }));
    drainMainQueue();
    EXPECT_FALSE(tool.isStartuped());
}

TEST_F(Closing, ErrorThatIsQueuedWhenTheToolStopsIsNotShown) {
    const AlertAnswer answer(QStringLiteral("OK"));
    delegate().burnProgressDidError(ScorchError(ScorchErrorCode::driveGone, "Gone."));
    tool.shutdown();
    drainMainQueue();
    EXPECT_EQ(answer.count(), 0);
}

TEST_F(Closing, BurnGoesOnAndTheNextWindowHasItsSheet) {
    startBurn();
    tool.shutdown();
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
    EXPECT_EQ(engine.audio().delegate(), nullptr);
    openTool();
    startBurn(); // What the engine sends to a delegate that is set while it burns.
    EXPECT_TRUE(sheet()->isAttachedTo(tool.mainWindow()));
    const AlertAnswer answer(QStringLiteral("Yes"));
    sheet()->defaultButton()->click();
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
}

TEST_F(Closing, SheetEscapeIsAClickOnItsButton) {
    startBurn();
    const AlertAnswer answer(QStringLiteral("Yes"));
    sheet()->reject();
    EXPECT_EQ(answer.count(), 1);
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
    EXPECT_TRUE(sheet()->isVisible());
    sheet()->close();
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(engine.audio().count("stopBurn"), 1);
}
