// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/ControllerTest.h"

#include "CDBurnerPlugin/MainQueue.h"

using testing::ElementsAre;

class Adding : public ControllerTest {
protected:
    void start() {
        send(engine.audio(),
             [](ScorchDelegate &delegate) { delegate.addFilesProgressDidStarted(); });
    }
    void end(const AddFilesResult &result = {}) {
        send(engine.audio(),
             [&result](ScorchDelegate &delegate) { delegate.addFilesProgressDidEnd(result); });
    }
    static SongList song() { return {{"/music/a.flac", QStringLiteral("A"), QStringLiteral("T")}}; }
};

TEST_F(Adding, FilesGoToTheCurrentBurner) {
    open();
    EXPECT_TRUE(controller->filesDidDragHere(song()));
    ASSERT_EQ(engine.audio().addedFiles.size(), 1U);
    const BurnFile &file = engine.audio().addedFiles[0].at(0);
    EXPECT_EQ(file.path, "/music/a.flac");
    EXPECT_EQ(file.artist, "A");
    EXPECT_EQ(file.title, "T");
    chooseData();
    controller->addFiles(song());
    EXPECT_EQ(engine.data().addedFiles.size(), 1U);
    EXPECT_EQ(engine.audio().addedFiles.size(), 1U);
}

TEST_F(Adding, DropAnswersWhatTheEngineAnswers) {
    open();
    engine.audio().acceptsFiles = false;
    EXPECT_FALSE(controller->filesDidDragHere(song()));
    EXPECT_EQ(usage.count("CDBurn_AddFile"), 1) << "also for a drop that is refused";
}

TEST_F(Adding, DropsAreReportedOnceInAProcess) {
    open();
    controller->filesDidDragHere(song());
    controller->filesDidDragHere(song());
    EXPECT_EQ(usage.count("CDBurn_AddFile"), 1);
    letGo();
    drainMainQueue();
    engine.handles.clear();
    open();
    controller->filesDidDragHere(song());
    EXPECT_EQ(usage.count("CDBurn_AddFile"), 1);
}

TEST_F(Adding, FilesOfTheHostAreNotReported) {
    open();
    controller->addFiles(song());
    EXPECT_EQ(usage.count("CDBurn_AddFile"), 0);
}

TEST_F(Adding, SheetAppearsWithTheStartOfACheck) {
    open();
    sheet()->setType(ProgressWindow::burningType);
    sheet()->defaultButton()->setText(QStringLiteral("OK"));
    sheet()->defaultButton()->setEnabled(false);
    start();
    EXPECT_TRUE(sheet()->isAttachedTo(controller->window()));
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(sheet()->type(), ProgressWindow::addingFilesType);
    EXPECT_EQ(sheet()->defaultButton()->text(), QStringLiteral("Cancel"));
    EXPECT_TRUE(sheet()->defaultButton()->isEnabled());
    EXPECT_EQ(sheet()->name(), QStringLiteral("Checking files..."));
    EXPECT_EQ(sheet()->tips(), QStringLiteral("Starting"));
    EXPECT_DOUBLE_EQ(sheet()->progress(), 0.0);
}

TEST_F(Adding, SheetShowsTheNumbersAsTheEngineCounts) {
    open();
    start();
    const auto report = [this](std::int64_t index) {
        send(engine.audio(), [index](ScorchDelegate &delegate) {
            delegate.addFilesProgressDidChangedIndexOf("a %@.flac", index, 3);
        });
    };
    report(0);
    EXPECT_EQ(sheet()->tips(), QStringLiteral("Processing: a %@.flac (0 of 3)"));
    EXPECT_DOUBLE_EQ(sheet()->progress(), 0.0);
    report(1);
    EXPECT_EQ(sheet()->tips(), QStringLiteral("Processing: a %@.flac (1 of 3)"));
    EXPECT_DOUBLE_EQ(sheet()->progress(), static_cast<double>(static_cast<float>(1.0 / 3.0)));
    report(3);
    EXPECT_EQ(sheet()->tips(), QStringLiteral("Processing: a %@.flac (3 of 3)"));
    EXPECT_DOUBLE_EQ(sheet()->progress(), 1.0);
    EXPECT_EQ(sheet()->name(), QStringLiteral("Checking files..."));
}

TEST_F(Adding, AcceptedFilesShowWhileTheSheetIsUp) {
    open();
    start();
    engine.audio().append("Song", 75);
    engine.audio().delegate()->fileDidAdded(nullptr);
    EXPECT_EQ(rowCount(), 0) << "the refresh is queued";
    drainMainQueue();
    EXPECT_EQ(rowCount(), 1);
    EXPECT_TRUE(sheet()->isVisible());
}

TEST_F(Adding, EachAcceptedFileHasARefreshOfItsOwn) {
    open();
    const int before = engine.audio().usedCapacityCount;
    controller->updateUI();
    const int forOne = engine.audio().usedCapacityCount - before;
    for (int count = 0; count < 3; ++count) {
        engine.audio().delegate()->fileDidAdded(nullptr);
    }
    drainMainQueue();
    EXPECT_EQ(engine.audio().usedCapacityCount - before, 4 * forOne);
}

TEST_F(Adding, RefreshThatComesTooLateReachesNobody) {
    open();
    const std::weak_ptr<VXCDBurnerMainWindowController> watched = controller;
    engine.audio().delegate()->fileDidAdded(nullptr);
    const int before = engine.audio().usedCapacityCount;
    letGo();
    EXPECT_FALSE(watched.expired()) << "the queued refresh keeps it";
    drainMainQueue();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(engine.audio().usedCapacityCount, before);
}

TEST_F(Adding, EndClosesTheSheetAndLogsNothing) {
    open();
    start();
    const LogCatcher log;
    end();
    EXPECT_FALSE(sheet()->isVisible());
    EXPECT_EQ(sheet()->type(), ProgressWindow::closedType);
    EXPECT_THAT(LogCatcher::lines(), ElementsAre());
}

TEST_F(Adding, RefusedFilesAreOnlyLogged) {
    open();
    start();
    const LogCatcher log;
    const std::string tipBefore = tip();
    end(AddFilesResult({{"/m/a.m4p", "protected"}, {"/m/b%@.m4p", "protected"}}, {}));
    EXPECT_FALSE(sheet()->isVisible());
    EXPECT_THAT(LogCatcher::lines(),
                ElementsAre("==>>protected files(2):\n(\n    /m/a.m4p: protected\n"
                            "    /m/b%@.m4p: protected\n)\nincompatible-files(0):\n(\n)"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(tip(), tipBefore);
}

TEST_F(Adding, IncompatibleFilesAreLoggedWithTheirBytes) {
    open();
    start();
    const LogCatcher log;
    end(AddFilesResult({}, {{"/m/a\xff\n", "no sound"}}));
    EXPECT_THAT(LogCatcher::lines(),
                ElementsAre("==>>protected files(0):\n(\n)\nincompatible-files(1):\n(\n"
                            "    /m/a\\xff\\x0a: no sound\n)"));
}

TEST_F(Adding, CancelWaitsForTheEngine) {
    open();
    start();
    const LogCatcher log;
    const AlertAnswer answer(QStringLiteral("No"));
    sheet()->defaultButton()->click();
    EXPECT_EQ(engine.audio().count("cancelToAddFiles"), 1);
    EXPECT_FALSE(sheet()->defaultButton()->isEnabled());
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(answer.count(), 0);
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.addFilesProgressDidCanceled(); });
    EXPECT_FALSE(sheet()->isVisible());
    EXPECT_THAT(LogCatcher::lines(), ElementsAre("==>>cancel load files, waiting...",
                                                 "==>>cancel load files, you got this"));
}

TEST_F(Adding, ClearedListRefreshesTheWindow) {
    openWithSongs(2);
    find<QPushButton>("_btnClear")->click();
    EXPECT_EQ(engine.audio().count("clearAll"), 1);
    EXPECT_EQ(rowCount(), 2) << "not before the engine reports it";
    send(engine.audio(), [](ScorchDelegate &delegate) { delegate.allFilesDidCleared(); });
    EXPECT_EQ(rowCount(), 0);
    EXPECT_FALSE(burnButton()->isEnabled());
    EXPECT_FALSE(find<QPushButton>("_btnClear")->isEnabled());
}
