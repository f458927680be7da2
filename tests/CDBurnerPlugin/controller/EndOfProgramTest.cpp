// SPDX-License-Identifier: GPL-2.0-or-later
// Each of these ends the application's event loop, after which the main queue takes nothing more:
// one test a process.
#include "CDBurnerPlugin/VXCDBurner.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/controller/AlertAnswer.h"
#include "tests/CDBurnerPlugin/controller/UsageLog.h"
#include "tests/support/FakeEngine.h"

#include <gmock/gmock.h>

#include <QApplication>

class EndOfProgram : public testing::Test {
protected:
    ~EndOfProgram() override {
        engine.releaseSearch();
        EXPECT_TRUE(runUntil([this] { return engine.finishedSearchCount() == 1; }));
    }

    static void exitSoon() {
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    }

    FakeEngine engine;
    UsageLog usage;
    VXCDBurner tool{UsageLog::context()};
};

TEST_F(EndOfProgram, BringsTheEngineToRestOnce) {
    const VXCDBurner second(UsageLog::context());
    tool.startup();
    exitSoon();
    QCoreApplication::exec();
    EXPECT_EQ(engine.shutDownCount, 1) << "however many tools there are";
    tool.shutdown();
}

TEST_F(EndOfProgram, DuringABurnAsksNothing) {
    engine.addDrive("Drive");
    tool.startup();
    tool.mainWindow()->show();
    ASSERT_TRUE(runUntil([this] { return !engine.handles.empty(); }));
    engine.audio().delegate()->burnProgressDidStarted();
    const AlertAnswer answer(QStringLiteral("No"));
    exitSoon();
    QCoreApplication::exec();
    EXPECT_EQ(answer.count(), 0);
    EXPECT_EQ(engine.audio().count("stopBurn"), 0) << "the engine cancels by itself";
    EXPECT_EQ(engine.shutDownCount, 1);
    tool.shutdown();
}

TEST_F(EndOfProgram, WhileAQuestionStandsAnswersIt) {
    engine.addDrive("Drive");
    tool.startup();
    tool.mainWindow()->show();
    ASSERT_TRUE(runUntil([this] { return !engine.handles.empty(); }));
    engine.audio().delegate()->burnProgressDidStarted();
    const AlertAnswer answer([](QMessageBox * /*alert*/) { QCoreApplication::exit(); });
    QMetaObject::invokeMethod(
        tool.mainWindow(), [this] { tool.mainWindow()->close(); }, Qt::QueuedConnection);
    QCoreApplication::exec();
    EXPECT_EQ(engine.audio().count("stopBurn"), 0);
    EXPECT_EQ(engine.shutDownCount, 1);
    tool.shutdown();
}

TEST_F(EndOfProgram, DoesNotWaitForTheSearchForDrives) {
    engine.addDrive("Drive");
    engine.holdSearch();
    tool.startup();
    EXPECT_TRUE(runUntil([this] { return engine.searchCountElsewhere() == 1; }));
    exitSoon();
    QCoreApplication::exec();
    tool.shutdown();
    engine.releaseSearch();
    EXPECT_TRUE(runUntil([this] { return engine.finishedSearchCount() == 1; }));
    QCoreApplication::processEvents();
    EXPECT_TRUE(engine.handles.empty()) << "the set-up step does not run any more";
}
