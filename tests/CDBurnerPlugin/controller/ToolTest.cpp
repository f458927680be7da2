// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/VXCDBurner.h"
#include "CDBurnerPlugin/VXUtilitiesToolContextContainer.h"
#include "engine/ScorchHooks.h"
#include "tests/CDBurnerPlugin/EventLoop.h"
#include "tests/CDBurnerPlugin/controller/UsageLog.h"
#include "tests/support/FakeEngine.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QPointer>
#include <QThread>
#include <QWindow>

#include <thread>

using testing::ElementsAre;

class Tool : public testing::Test {
protected:
    ~Tool() override {
        tool.shutdown();
        // Each opening starts a search for drives, which asks the engine.
        const int openings = usage.count("CDBurn_Open");
        EXPECT_TRUE(runUntil([&] { return engine.finishedSearchCount() == openings; }));
        drainMainQueue();
    }

    FakeEngine engine;
    UsageLog usage;
    VXCDBurner tool{UsageLog::context()};
};

TEST_F(Tool, TellsItsNameAndIconBeforeItIsStarted) {
    EXPECT_EQ(tool.toolName(), QStringLiteral("CD Burner"));
    EXPECT_EQ(tool.localizedToolName(), QStringLiteral("CD Burner"));
    EXPECT_FALSE(tool.icon().isNull());
    EXPECT_FALSE(tool.isStartuped());
}

TEST_F(Tool, EachIconIsANewImage) {
    EXPECT_NE(tool.icon().cacheKey(), tool.icon().cacheKey());
}

TEST_F(Tool, StartedTwiceIsOneWindowAndOneEvent) {
    EXPECT_EQ(tool.startup(), 0);
    QWidget *const window = tool.mainWindow();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(tool.startupWith(QStringLiteral("anything")), 0);
    EXPECT_EQ(tool.mainWindow(), window);
    EXPECT_EQ(usage.count("CDBurn_Open"), 1);
    EXPECT_FALSE(window->isVisible()) << "showing it is the host's business";
}

TEST_F(Tool, IsStartedFromStartupToShutdown) {
    EXPECT_EQ(tool.mainWindow(), nullptr);
    tool.startup();
    EXPECT_TRUE(tool.isStartuped());
    tool.shutdown();
    EXPECT_FALSE(tool.isStartuped());
    EXPECT_EQ(tool.mainWindow(), nullptr);
}

TEST_F(Tool, ShutdownWhenNotStartedDoesNothing) {
    tool.shutdown();
    EXPECT_FALSE(tool.isStartuped());
    EXPECT_THAT(usage.keys(), ElementsAre());
}

TEST_F(Tool, WindowIsGoneAfterShutdown) {
    tool.startup();
    const QPointer<QWidget> window = tool.mainWindow();
    window->show();
    tool.shutdown();
    EXPECT_TRUE(window.isNull() || !window->isVisible());
    EXPECT_TRUE(runUntil([&window] {
        drainMainQueue();
        return window.isNull();
    }));
}

TEST_F(Tool, FilesAreRefusedUntilItIsStarted) {
    const SongList files = {{"/m/a", QString(), QString()}};
    EXPECT_FALSE(tool.addFiles(files));
    tool.startup();
    EXPECT_TRUE(engine.audio().addedFiles.empty()) << "nothing was queued";
    engine.audio().acceptsFiles = false;
    EXPECT_TRUE(tool.addFiles(files)) << "whatever the burner answers";
    EXPECT_EQ(engine.audio().addedFiles.size(), 1U);
}

TEST_F(Tool, EmptyListOfTheHostIsPassedOn) {
    tool.startup();
    EXPECT_TRUE(tool.addFiles({}));
    ASSERT_EQ(engine.audio().addedFiles.size(), 1U);
    EXPECT_TRUE(engine.audio().addedFiles[0].empty());
}

TEST_F(Tool, ClosingTheWindowEndsTheStartedState) {
    tool.startup();
    const QPointer<QWidget> window = tool.mainWindow();
    window->show();
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(tool.isStartuped());
    tool.startup();
    EXPECT_EQ(usage.count("CDBurn_Open"), 2);
    EXPECT_NE(tool.mainWindow(), window.data());
}

TEST_F(Tool, AnotherWindowThatClosesChangesNothing) {
    QWidget other;
    tool.windowWillClose(&other);
    tool.startup();
    tool.windowWillClose(&other);
    EXPECT_TRUE(tool.isStartuped());
}

TEST_F(Tool, ClosingTakesTheWindowOffTheHostsWindow) {
    QWidget host;
    host.show();
    tool.startup();
    const QPointer<QWidget> window = tool.mainWindow();
    window->show();
    window->windowHandle()->setTransientParent(host.windowHandle());
    const QPointer<QWindow> handle = window->windowHandle();
    window->close();
    ASSERT_FALSE(handle.isNull());
    EXPECT_EQ(handle->transientParent(), nullptr);
}

TEST_F(Tool, ConfigurationIsAcceptedAndIgnored) {
    tool.setToolConfigs({{QStringLiteral("key"), 1}});
    EXPECT_FALSE(tool.isStartuped());
}

TEST_F(Tool, FirstContextOfTheProcessStays) {
    class OtherContext final : public VXUtilitiesToolContext {
    public:
        VXUserDataCollector *userDataCollector() override { return nullptr; }
    } other;
    const VXCDBurner second(&other);
    EXPECT_EQ(VXUtilitiesToolContextContainer::defaultContainer().utilitiesToolContext(),
              UsageLog::context());
    tool.startup();
    EXPECT_EQ(usage.count("CDBurn_Open"), 1);
}

TEST_F(Tool, EventsComeInTheOrderOfAnOpening) {
    engine.addDrive("Drive");
    tool.startup();
    EXPECT_TRUE(runUntil([this] { return usage.keys().size() == 2; }));
    EXPECT_THAT(usage.keys(), ElementsAre("CDBurn_Open", "CDBurn_Blankdisk"));
}

TEST_F(Tool, EngineReachesTheMainThreadThroughIt) {
    bool isOnMainThread = false;
    bool hasRun = false;
    std::thread worker([&] {
        ScorchHooks::shared().postToMainThread([&] {
            isOnMainThread = QThread::currentThread() == qApp->thread();
            hasRun = true;
        });
    });
    EXPECT_TRUE(runUntil([&hasRun] { return hasRun; }));
    worker.join();
    EXPECT_TRUE(isOnMainThread);
}

TEST_F(Tool, EngineHasTheUsersLocaleAndLanguage) {
    const QLocale previous;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(ScorchHooks::shared().decimalMark(), ",");
    QLocale::setDefault(previous);
    EXPECT_EQ(ScorchHooks::shared().localizedText("No %@ such text"), "No %@ such text");
}
